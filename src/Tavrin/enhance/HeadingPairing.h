// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/drafting/HeadingFinder.h>
#include <Tavrin/enhance/PDFXMLEnhancer.h>

namespace Tavrin
{

/// Finds the headings of sections that the outline leaves out, between the places of the entries
/// before and behind them in the numbering.
class HeadingPairing
{
public:
    /// Adds to the mapping, which must have what the outline tells. The specification must be
    /// bound to its document.
    HeadingPairing(const PDFXMLEnhancer &specification, PDFXMLEnhancer::LabelLinkMapping &mapping);

    void pair();

private:
    struct Place {
        int page = 0;
        /// In upright space.
        Point point;
    };

    std::optional<Place> placeOf(const SpecificationEntry &entry) const;
    std::optional<Place> find(const SpecificationEntry &entry, const std::optional<Place> &behind,
                              int lastPage);

    const PDFXMLEnhancer &m_specification;
    PDFXMLEnhancer::LabelLinkMapping &m_mapping;
    std::vector<Specification::EntryPtr> m_entries;
    PrintedPages m_pages;
    BodyColumn m_column;
    HeadingFinder m_finder;
};

} // namespace Tavrin
