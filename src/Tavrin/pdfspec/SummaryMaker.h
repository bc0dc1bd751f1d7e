// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// Makes the summary of a section or chapter: its text in the font of the surroundings, with the
/// place of each line.
class SummaryMaker
{
public:
    explicit SummaryMaker(const PDFSpecification &specification);

    /// Fills summary and line places of the entry. What can't be read is a line on standard error,
    /// and the entry stays without.
    void make(PDFSpecification::Entry &entry) const;

private:
    void trimToLineRange(const PDFSpecification::Entry &entry, StyledText &text) const;

    const PDFSpecification &m_specification;
};

} // namespace Tavrin
