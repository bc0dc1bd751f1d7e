// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// Puts together the rows that are shown of an entry of a PDF.
class EntryDisplay
{
public:
    explicit EntryDisplay(const PDFSpecification::Entry &entry);

    std::vector<EntryDisplayItem> items() const;

private:
    EntryDisplayItem moreItem(const Specification *specification) const;
    /// The related entries that can be found, as texts that link to them.
    QVariantList relatedTexts(Specification *specification) const;

    const PDFSpecification::Entry &m_entry;
};

} // namespace Tavrin
