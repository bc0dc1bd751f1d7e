// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/enhance/PDFXMLEnhancer.h>

namespace Tavrin
{

/// Finds sections and chapters in the outline: the n-th numbered item is the n-th entry by number,
/// if it holds its title. Entries that this leaves out, since the outline lists others or has no
/// numbers, are looked up by number and title.
class OutlinePairing
{
public:
    OutlinePairing(const PDFXMLEnhancer &specification, const HostPDFDocument &document);

    /// Entry label to link. What doesn't fit is told on standard error.
    PDFXMLEnhancer::LabelLinkMapping pair();

private:
    struct Item {
        QString label;
        HostPDFOutline outline;
        bool isTaken = false;
    };

    void pairInOrder();
    void pairByTitle();
    void take(Item &item, const SpecificationEntry &entry);

    const PDFXMLEnhancer &m_specification;
    std::vector<Item> m_items;
    std::vector<Specification::EntryPtr> m_entries;
    PDFXMLEnhancer::LabelLinkMapping m_mapping;
};

} // namespace Tavrin
