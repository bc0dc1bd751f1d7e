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
    /// The first of them, for which nothing is read from the pages.
    std::vector<EntryDisplayItem> knownItems() const;

private:
    EntryDisplayItem moreItem(const Specification *specification) const;
    /// The related entries that can be found, as texts that link to them.
    QVariantList relatedTexts(Specification *specification) const;

    const PDFSpecification::Entry &m_entry;
};

} // namespace Tavrin
