// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin::Cli::TitleCheck
{

struct Result {
    bool isAtPlace = false;
    /// What is wrong; empty if nothing is.
    QString message;
};

/// Whether the title of an entry is printed where the entry's place is: the heading of a textual
/// entry within a few lines below it, the caption of a figure or table anywhere below it.
Result check(const PDFSpecification::Entry &entry);

} // namespace Tavrin::Cli::TitleCheck
