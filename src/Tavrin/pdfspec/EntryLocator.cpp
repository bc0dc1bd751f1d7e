// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/EntryLocator.h>

#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/StandardError.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// How much of a line's height a selection must cover to mean the line: the cells of neighbouring
/// lines overlap a little.
constexpr double touched = 0.25;

bool touches(const HostPDFSelection &selection, const HostPDFPage &page, const Rect &line)
{
    const Rect common = selection.bounds(page).intersection(line);
    return !common.isNull() && common.size.height >= touched * line.size.height;
}

QString printed(TextRange range)
{
    return u"{%1, %2}"_s.arg(range.location).arg(range.length);
}

/// The place at the top left of a selection on a page.
HostPDFDestination topLeft(const HostPDFSelection &selection,
                           const std::shared_ptr<HostPDFPage> &page)
{
    const Rect bounds = selection.bounds(*page);
    return HostPDFDestination(page, {bounds.minX(), bounds.maxY()});
}

double topOf(const SectionHeading &heading, const HostPDFPage &page)
{
    return page.selection(heading.range).bounds(page).maxY();
}

/// The part of a page's area from a heading down to the next, as far as they stand on the page.
Rect between(const SectionHeading &heading, const std::optional<SectionHeading> &next,
             const HostPDFPage &page, Rect area)
{
    if (heading.page == page.index()) {
        const double top = std::max(area.minY(), topOf(heading, page));
        area = area.intersection(Rect::fromCorners(area.origin, {area.maxX(), top}));
    }
    if (next && next->page == page.index()) {
        const double bottom = std::min(topOf(*next, page), area.maxY());
        area =
            area.intersection(Rect::fromCorners({area.minX(), bottom}, {area.maxX(), area.maxY()}));
    }
    return area;
}

} // namespace

EntryLocator::EntryLocator(const PrintReader &print) : m_print(print) {}

std::optional<EntryPageInfo> EntryLocator::rects(const Entry &entry) const
{
    if (!m_print.document()) {
        standardError(u"No document has been set"_s);
        return std::nullopt;
    }
    if (!entry.destination() || !entry.destination()->page())
        return std::nullopt;
    if (entry.destinationRects())
        return EntryPageInfo{{}, {}, *entry.destinationRects()};
    return isTextual(entry.type()) ? textualRects(entry) : graphicalRects(entry);
}

std::optional<EntryPageInfo> EntryLocator::graphicalRects(const Entry &entry) const
{
    const auto parent = entry.parentEntry();
    const Entry *wanted = parent ? parent.get() : &entry;
    for (const auto &[found, info] : m_print.layoutBreaks(entry.destination()->page()->index())) {
        if (found.get() == wanted)
            return info;
    }
    return std::nullopt;
}

std::optional<EntryPageInfo> EntryLocator::textualRects(const Entry &entry) const
{
    const auto selected = selection(entry);
    if (!selected || selected->isEmpty())
        return searchedRects(entry);
    EntryPageInfo info{selected->attributedString(), *selected, {}};
    for (const auto &page : selected->pages())
        info.pageRects[page->index()] = selected->bounds(*page);
    return info;
}

std::optional<EntryPageInfo> EntryLocator::searchedRects(const Entry &entry) const
{
    const int place = entry.destination()->page()->index();
    const auto heading = m_print.sectionHeading(entry);
    if (!heading) {
        standardError(
            u"Couldn't get rect for start range %1 on page %2"_s.arg(printed(TextRange::notFound()))
                .arg(place));
        return std::nullopt;
    }
    const auto next = EntryNavigator(m_print.specification()).nextTextual(entry);
    const auto end = next ? m_print.sectionHeading(*next) : std::nullopt;
    if (next && !end) {
        standardError(
            u"Couldn't get rect for end range %1 on page %2"_s.arg(printed(TextRange::notFound()))
                .arg(next->destination()->page()->index()));
    }
    EntryPageInfo info;
    const int last = std::max(heading->page, end ? end->page : heading->page);
    for (int index = heading->page; index <= last; ++index) {
        const auto page = m_print.document()->page(index);
        if (!page)
            continue;
        const Rect area = between(*heading, end, *page, m_print.specification().readingArea(*page));
        const HostPDFSelection inside = page->selection(area);
        if (inside.string().trimmed().isEmpty())
            continue;
        if (!info.text.isEmpty())
            info.text.append(u"\n"_s);
        info.text.append(inside.attributedString());
        info.selection.addSelection(inside);
        info.pageRects[index] = area;
    }
    return info;
}

// Lines

std::optional<LineLocations> EntryLocator::lineLocations(StyledTextEditing::LineRange range,
                                                         const Entry &entry) const
{
    const auto lines = entry.lineLocations();
    const bool has = lines && range.lower >= 0 && range.lower <= range.upper &&
                     range.upper <= static_cast<int>(lines->size());
    if (!has)
        return std::nullopt;
    return LineLocations(lines->begin() + range.lower, lines->begin() + range.upper);
}

std::optional<StyledTextEditing::LineRange>
EntryLocator::lineRange(const HostPDFSelection &selection, const Entry &entry) const
{
    const auto lines = entry.lineLocations();
    if (!lines || !entry.summaryText()) {
        standardError(u"Couldn't get extracted text for "_s + entry.label());
        return std::nullopt;
    }
    // One record a line of the text, so a record's position is the line's number.
    std::vector<int> numbers;
    for (const auto &page : selection.pages()) {
        for (std::size_t i = 0; i < lines->size(); ++i) {
            if ((*lines)[i].page == page->index() && touches(selection, *page, (*lines)[i].bounds))
                numbers.push_back(static_cast<int>(i));
        }
    }
    if (numbers.empty())
        return std::nullopt;
    std::sort(numbers.begin(), numbers.end());
    const int count = static_cast<int>(numbers.size());
    if (numbers.back() - numbers.front() + 1 != count) {
        qCWarning(pdfLog).noquote() << u"Lines aren't consecutive for "_s + selection.string();
        return std::nullopt;
    }
    return StyledTextEditing::LineRange{numbers.front(), numbers.back() + 1};
}

std::optional<HostPDFSelection>
EntryLocator::selection(const Entry &entry, std::optional<StyledTextEditing::LineRange> range) const
{
    if (!m_print.document())
        return std::nullopt;
    const auto lines = range ? lineLocations(*range, entry) : entry.lineLocations();
    HostPDFSelection result;
    if (!lines)
        return result;
    for (const LineLocation &line : *lines) {
        if (const auto page = m_print.document()->page(line.page))
            result.addSelection(page->selection(line.bounds));
    }
    return result;
}

// From a place to an entry

bool EntryLocator::holds(const Entry &entry, const HostPDFDestination &place) const
{
    const auto info = rects(entry);
    const auto index = m_print.document()->indexForPage(*place.page());
    if (!info || !index)
        return false;
    const auto rect = info->pageRects.find(*index);
    return rect != info->pageRects.end() && rect->second.contains(place.point());
}

std::shared_ptr<PDFSpecification::Entry>
EntryLocator::closest(const HostPDFDestination &place) const
{
    const EntryNavigator navigator(m_print.specification());
    auto candidate = navigator.lastBefore(place);
    if (!candidate)
        return nullptr;
    if (holds(*candidate, place))
        return candidate;
    if (auto next = navigator.next(*candidate); next && holds(*next, place))
        return next;
    // Sections follow one another, so of those without rectangles of their own only the nearest
    // can reach so far; and a figure or table is found no further than a page from its place.
    const int page = place.page()->index();
    bool metSection = isTextual(candidate->type());
    for (auto entry = navigator.previous(*candidate); entry; entry = navigator.previous(*entry)) {
        const bool isSection = isTextual(entry->type());
        const bool isNear = entry->destination()->page()->index() >= page - 2;
        const bool canReach = entry->destinationRects() || (isSection ? !metSection : isNear);
        metSection |= isSection;
        if (canReach && holds(*entry, place))
            return entry;
    }
    return nullptr;
}

std::shared_ptr<PDFSpecification::Entry>
EntryLocator::closest(const HostPDFSelection &selection) const
{
    const auto pages = selection.pages();
    if (pages.empty())
        return nullptr;
    auto found = closest(topLeft(selection, pages.front()));
    return found ? found : closest(topLeft(selection, pages.back()));
}

} // namespace Tavrin
