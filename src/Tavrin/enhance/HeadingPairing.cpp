// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/HeadingPairing.h>

#include <algorithm>

#include <Tavrin/drafting/WholePlace.h>
#include <Tavrin/enhance/EntryOrder.h>
#include <Tavrin/pdfspec/InternalLink.h>

namespace Tavrin
{

namespace
{

/// Without a place of the next entry, a heading is looked for on so many pages.
constexpr int pagesAhead = 60;

} // namespace

HeadingPairing::HeadingPairing(const PDFXMLEnhancer &specification,
                               PDFXMLEnhancer::LabelLinkMapping &mapping)
    : m_specification(specification),
      m_mapping(mapping),
      m_pages(specification.document()),
      m_column(BodyColumnMeasurer(m_pages).measure()),
      m_finder(m_pages, m_column)
{
    for (const auto &entry : specification.entries()) {
        if (isTextual(entry->type()))
            m_entries.push_back(entry);
    }
    sortByNumber(m_entries);
}

void HeadingPairing::pair()
{
    std::vector<std::optional<Place>> places;
    for (const auto &entry : m_entries)
        places.push_back(placeOf(*entry));
    std::optional<Place> behind;
    for (std::size_t position = 0; position < m_entries.size(); ++position) {
        std::optional<Place> &place = places[position];
        // Between nothing and nothing there is no telling which of many lines it is.
        const auto next = std::find_if(places.begin() + std::ptrdiff_t(position), places.end(),
                                       [](const auto &known) { return known.has_value(); });
        if (!place && (behind || next != places.end())) {
            const int from = behind ? behind->page : std::max(0, (*next)->page - pagesAhead);
            const int last = next != places.end() ? (*next)->page : from + pagesAhead;
            place = find(*m_entries[position], behind, std::min(last, m_pages.pageCount() - 1));
        }
        if (place)
            behind = place;
    }
}

std::optional<HeadingPairing::Place> HeadingPairing::placeOf(const SpecificationEntry &entry) const
{
    if (!m_mapping.contains(entry.label()))
        return std::nullopt;
    const auto destination = m_specification.destinationForLink(m_mapping.value(entry.label()));
    if (!destination || !destination->page())
        return std::nullopt;
    const int page = destination->page()->index();
    return Place{page, m_pages.geometry(page).toUpright(destination->point())};
}

std::optional<HeadingPairing::Place> HeadingPairing::find(const SpecificationEntry &entry,
                                                          const std::optional<Place> &behind,
                                                          int lastPage)
{
    DraftItem item;
    item.title = entry.title();
    item.number = HeadingNumber::parseWhole(entry.label());
    item.label = item.number ? entry.label() + u' ' + entry.title() : entry.title();
    item.depth = std::max(0, static_cast<int>(entry.index().size()) - 1);
    item.page = behind ? behind->page : 0;
    if (behind)
        item.hint = behind->point;
    if (!m_finder.find(item) && !m_finder.findLater(item, lastPage))
        return std::nullopt;
    if (item.page > lastPage)
        return std::nullopt;
    const Point place = wholePlace(item.corner, m_pages.geometry(item.page));
    m_mapping.insert(entry.label(), InternalLink::printPlace(item.page, place));
    return Place{item.page, item.corner};
}

} // namespace Tavrin
