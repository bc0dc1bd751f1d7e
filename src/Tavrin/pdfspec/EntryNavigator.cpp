// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/EntryNavigator.h>

#include <Tavrin/platform/StandardError.h>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

using namespace Qt::StringLiterals;

EntryNavigator::EntryNavigator(const PDFSpecification &specification)
    : m_specification(specification)
{
}

std::optional<std::size_t> EntryNavigator::pageOf(const HostPDFDestination &place) const
{
    const auto &document = m_specification.document();
    const auto index =
        document && place.page() ? document->indexForPage(*place.page()) : std::nullopt;
    const bool isListed =
        index && static_cast<std::size_t>(*index) < m_specification.sortedDestinations().size();
    return isListed ? std::optional(static_cast<std::size_t>(*index)) : std::nullopt;
}

std::optional<EntryNavigator::Position>
EntryNavigator::position(const PDFSpecification::Entry &any) const
{
    // A child stands where its parent does.
    const auto parent = any.parentEntry();
    const PDFSpecification::Entry &entry = parent ? *parent : any;
    const auto page = entry.destination() ? pageOf(*entry.destination()) : std::nullopt;
    if (!page)
        return std::nullopt;
    const auto &list = m_specification.sortedDestinations()[*page];
    const auto it = std::find_if(list.begin(), list.end(),
                                 [&entry](const EntryPtr &e) { return e.get() == &entry; });
    return Position{*page, it - list.begin()};
}

bool EntryNavigator::isListed(const PDFSpecification::Entry &entry) const
{
    const auto place = position(entry);
    return place && static_cast<std::size_t>(place->index) <
                        m_specification.sortedDestinations()[place->page].size();
}

EntryNavigator::EntryPtr EntryNavigator::advance(Position &position, int direction) const
{
    const auto &pages = m_specification.sortedDestinations();
    for (;;) {
        const auto size = static_cast<std::ptrdiff_t>(pages[position.page].size());
        position.index += direction;
        if (position.index >= 0 && position.index < size)
            return pages[position.page][static_cast<std::size_t>(position.index)];
        const bool isLast = direction > 0 ? position.page + 1 == pages.size() : position.page == 0;
        if (isLast)
            return nullptr;
        position.page = direction > 0 ? position.page + 1 : position.page - 1;
        position.index =
            direction > 0 ? -1 : static_cast<std::ptrdiff_t>(pages[position.page].size());
    }
}

EntryNavigator::EntryPtr EntryNavigator::step(const PDFSpecification::Entry &entry,
                                              int direction) const
{
    auto place = position(entry);
    if (place)
        return advance(*place, direction);
    standardError(
        u"Can't compute next entry after \"%1\" without knowing destination information"_s.arg(
            entry.description()));
    return nullptr;
}

EntryNavigator::EntryPtr EntryNavigator::next(const PDFSpecification::Entry &entry) const
{
    return step(entry, 1);
}

EntryNavigator::EntryPtr EntryNavigator::previous(const PDFSpecification::Entry &entry) const
{
    return step(entry, -1);
}

EntryNavigator::EntryPtr EntryNavigator::nextTextual(const PDFSpecification::Entry &entry) const
{
    auto place = position(entry);
    EntryPtr found = place ? advance(*place, 1) : nullptr;
    while (found && !isTextual(found->type()))
        found = advance(*place, 1);
    return found;
}

EntryNavigator::EntryPtr EntryNavigator::lastBefore(const HostPDFDestination &place) const
{
    const auto page = pageOf(place);
    if (!page)
        return nullptr;
    Position position{
        *page, static_cast<std::ptrdiff_t>(m_specification.sortedDestinations()[*page].size())};
    EntryPtr found = advance(position, -1);
    while (found && !std::is_lt(found->destination()->compare(place)))
        found = advance(position, -1);
    return found;
}

EntryNavigator::EntryPtr EntryNavigator::at(const HostPDFDestination &place) const
{
    const auto page = pageOf(place);
    if (!page)
        return nullptr;
    const auto &list = m_specification.sortedDestinations()[*page];
    const auto it = std::find_if(list.begin(), list.end(), [&place](const EntryPtr &entry) {
        return std::abs(entry->destination()->point().y - place.point().y) <= 1;
    });
    return it == list.end() ? nullptr : *it;
}

EntryNavigator::EntryPtr EntryNavigator::meantBy(const HostPDFDestination &place) const
{
    constexpr double room = 30;
    const auto page = pageOf(place);
    if (!page)
        return nullptr;
    for (const EntryPtr &entry : m_specification.sortedDestinations()[*page]) {
        const double below = place.point().y - entry->destination()->point().y;
        if (below >= -2 && below <= room)
            return entry;
    }
    return lastBefore(place);
}

} // namespace Tavrin
