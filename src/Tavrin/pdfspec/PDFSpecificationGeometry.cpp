// SPDX-License-Identifier: Apache-2.0
// The part of PDFSpecification that finds entries on the pages, and the way back.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/pdfspec/LayoutBreakMeasurer.h>
#include <Tavrin/pdfspec/PageLines.h>
#include <Tavrin/pdfspec/ReadingCache.h>
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

} // namespace

const PDFSpecification::LayoutBreaks &PDFSpecification::layoutBreaks(int page) const
{
    // What the cache holds stays until another document is bound.
    return *m_reading->get(&ReadingCache::breaks, page, [this, page] {
        auto breaks = std::make_shared<LayoutBreaks>();
        if (m_cachingDocument) {
            LayoutBreakMeasurer(*this).measure(page, [&](const auto &entry, const auto &info) {
                breaks->emplace_back(entry, info);
            });
        }
        return breaks;
    });
}

std::optional<EntryPageInfo> PDFSpecification::pageRectInfo(const Entry &entry) const
{
    if (!m_cachingDocument) {
        standardError(u"No document has been set"_s);
        return std::nullopt;
    }
    if (!entry.destination() || !entry.destination()->page())
        return std::nullopt;
    if (entry.destinationRects())
        return EntryPageInfo{{}, {}, *entry.destinationRects()};
    return isTextual(entry.type()) ? textualRects(entry) : graphicalRects(entry);
}

std::optional<EntryPageInfo> PDFSpecification::graphicalRects(const Entry &entry) const
{
    const auto parent = entry.parentEntry();
    const Entry *wanted = parent ? parent.get() : &entry;
    for (const auto &[found, info] : layoutBreaks(entry.destination()->page()->index())) {
        if (found.get() == wanted)
            return info;
    }
    return std::nullopt;
}

std::optional<EntryPageInfo> PDFSpecification::textualRects(const Entry &entry) const
{
    const auto selected = selection(entry);
    if (!selected || selected->isEmpty())
        return searchedRects(entry);
    EntryPageInfo info{selected->attributedString(), *selected, {}};
    for (const auto &page : selected->pages())
        info.pageRects[page->index()] = selected->bounds(*page);
    return info;
}

std::optional<EntryPageInfo> PDFSpecification::searchedRects(const Entry &entry) const
{
    const int place = entry.destination()->page()->index();
    const auto heading = sectionHeading(entry);
    if (!heading) {
        standardError(
            u"Couldn't get rect for start range %1 on page %2"_s.arg(printed(TextRange::notFound()))
                .arg(place));
        return std::nullopt;
    }
    const auto next = EntryNavigator(*this).nextTextual(entry);
    const auto end = next ? sectionHeading(*next) : std::nullopt;
    if (next && !end) {
        standardError(
            u"Couldn't get rect for end range %1 on page %2"_s.arg(printed(TextRange::notFound()))
                .arg(next->destination()->page()->index()));
    }
    EntryPageInfo info;
    const int last = std::max(heading->page, end ? end->page : heading->page);
    for (int index = heading->page; index <= last; ++index) {
        const auto page = m_cachingDocument->page(index);
        if (!page)
            continue;
        Rect area = readingArea(*page);
        if (index == heading->page) {
            const double top = page->selection(heading->range).bounds(*page).maxY();
            area = area.intersection(
                Rect::fromCorners(area.origin, {area.maxX(), std::max(area.minY(), top)}));
        }
        if (end && index == end->page) {
            const double bottom = page->selection(end->range).bounds(*page).maxY();
            area = area.intersection(Rect::fromCorners({area.minX(), std::min(bottom, area.maxY())},
                                                       {area.maxX(), area.maxY()}));
        }
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

std::optional<LineLocations> PDFSpecification::lineLocations(StyledTextEditing::LineRange range,
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
PDFSpecification::lineRange(const HostPDFSelection &selection, const Entry &entry) const
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
PDFSpecification::selection(const Entry &entry,
                            std::optional<StyledTextEditing::LineRange> range) const
{
    if (!m_cachingDocument)
        return std::nullopt;
    const auto lines = range ? lineLocations(*range, entry) : entry.lineLocations();
    HostPDFSelection result;
    if (!lines)
        return result;
    for (const LineLocation &line : *lines) {
        if (const auto page = m_cachingDocument->page(line.page))
            result.addSelection(page->selection(line.bounds));
    }
    return result;
}

// From a place to an entry

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::nextEntry(const SpecificationEntry &entry) const
{
    const auto *known = dynamic_cast<const Entry *>(&entry);
    return known ? EntryNavigator(*this).next(*known) : nullptr;
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::previousEntry(const SpecificationEntry &entry) const
{
    const auto *known = dynamic_cast<const Entry *>(&entry);
    return known ? EntryNavigator(*this).previous(*known) : nullptr;
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::entry(const HostPDFDestination &place) const
{
    return EntryNavigator(*this).at(place);
}

bool PDFSpecification::holds(const Entry &entry, const HostPDFDestination &place) const
{
    const auto info = pageRectInfo(entry);
    const auto index = m_cachingDocument->indexForPage(*place.page());
    if (!info || !index)
        return false;
    const auto rect = info->pageRects.find(*index);
    return rect != info->pageRects.end() && rect->second.contains(place.point());
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::closestEntry(const HostPDFDestination &place) const
{
    const EntryNavigator navigator(*this);
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

std::shared_ptr<PDFSpecification::Entry> PDFSpecification::entry(const HostPDFSelection &selection)
{
    const auto pages = selection.pages();
    if (pages.empty())
        return nullptr;
    auto found = closestEntry(topLeft(selection, pages.front()));
    if (!found)
        found = closestEntry(topLeft(selection, pages.back()));
    if (!found || !isTextual(found->type()))
        return found;
    const auto range = lineRange(selection, *found);
    if (!range)
        return found;
    auto child = found->childEntry(*range);
    initializeEntry(*child);
    return child;
}

} // namespace Tavrin
