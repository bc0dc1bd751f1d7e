// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/RegionGrower.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tavrin
{

namespace
{

using Kind = CaptionSurroundings::Kind;
using Side = CaptionSurroundings::Side;

/// How far the first thing may stand from the caption, and the next from the one before.
constexpr double captionGap = 40;
constexpr double drawingGap = 36;
constexpr double lineGap = 24;
/// Beside drawings, text that belongs to them stands closer.
constexpr double labelGap = 12;
/// How far to the side of what is there already a line may stand.
constexpr double sideGap = 36;
/// A drawing that is no taller is a rule.
constexpr double ruleHeight = 4;
constexpr double ruleWidth = 40;
constexpr double inkMargin = 1.5;
/// Blank space that hides a drawing which the engine doesn't tell.
constexpr double hiddenDrawing = 40;

bool isRule(const Rect &drawing)
{
    return drawing.size.height <= ruleHeight && drawing.size.width >= ruleWidth;
}

bool isAligned(const Rect &a, const Rect &b)
{
    return std::abs(a.minX() - b.minX()) <= 3 && std::abs(a.maxX() - b.maxX()) <= 3;
}

bool overlapsSideways(const Rect &a, const Rect &b)
{
    return a.minX() <= b.maxX() && b.minX() <= a.maxX();
}

} // namespace

/// A drawing or a line, on its side of the caption.
struct RegionGrower::Item {
    Rect bounds;
    Kind kind = Kind::Free;
    bool isDrawing = false;
    /// Distances from the caption, downward or upward.
    double nearEdge = 0;
    double center = 0;
};

struct RegionGrower::Growth {
    Rect area = Rect::null();
    double firstGap = 0;
    bool hasDrawings = false;
    bool isOpen = false;

    bool isEmpty() const { return area.isNull(); }
};

RegionGrower::RegionGrower(CaptionSurroundings surroundings)
    : m_page(std::move(surroundings)), m_start(m_page.caption)
{
    std::erase_if(m_page.drawings, [this](const Rect &drawing) {
        const Rect seen = drawing.intersection(m_page.box);
        return seen.isNull() || (seen.size.width > 0.9 * m_page.box.size.width &&
                                 seen.size.height > 0.9 * m_page.box.size.height);
    });
    for (const Rect &drawing : m_page.drawings) {
        if (drawing.contains(m_page.caption.center()))
            m_start = m_start.united(drawing);
    }
}

std::vector<RegionGrower::Item> RegionGrower::items(const Rect &start, bool below) const
{
    std::vector<Item> items;
    const auto add = [&](const Rect &bounds, Kind kind, bool isDrawing) {
        const double nearEdge = below ? start.minY() - bounds.maxY() : bounds.minY() - start.maxY();
        const double center =
            below ? start.minY() - bounds.center().y : bounds.center().y - start.maxY();
        if (center > 0 && m_page.box.contains(bounds.center()))
            items.push_back({bounds, kind, isDrawing, nearEdge, center});
    };
    for (const Rect &drawing : m_page.drawings)
        add(drawing, Kind::Free, true);
    for (const auto &line : m_page.lines)
        add(line.bounds, line.kind, false);
    std::stable_sort(items.begin(), items.end(),
                     [](const Item &a, const Item &b) { return a.nearEdge < b.nearEdge; });
    return items;
}

Rect RegionGrower::lastRule(const std::vector<Item> &items, std::size_t rule) const
{
    const Rect first = items[rule].bounds;
    Rect last = first;
    for (std::size_t i = rule + 1; i < items.size(); ++i) {
        const Item &item = items[i];
        const bool isProse = item.kind == Kind::Body &&
                             item.bounds.size.width > 0.6 * first.size.width &&
                             item.bounds.minX() <= first.minX() + 3;
        if (item.kind == Kind::Barrier || isProse)
            break;
        if (item.isDrawing && isRule(item.bounds) && isAligned(item.bounds, first))
            last = item.bounds;
    }
    return last;
}

RegionGrower::Growth RegionGrower::grow(const Rect &start, bool below, Growth growth) const
{
    const std::vector<Item> nearest = items(start, below);
    // How far the region reaches from the caption.
    double reach = 0;
    Rect area = start;
    for (std::size_t i = 0; i < nearest.size(); ++i) {
        const Item &item = nearest[i];
        if (item.center <= reach && item.kind != Kind::Barrier)
            continue;
        // Lines far to the side are another column's.
        if (!item.isDrawing && !overlapsSideways(item.bounds, area.insetBy(-sideGap, 0)))
            continue;
        const double gap = item.nearEdge - reach;
        double limit = item.isDrawing ? drawingGap : growth.hasDrawings ? labelGap : lineGap;
        if (growth.isEmpty())
            limit = captionGap;
        if (item.kind != Kind::Free || (gap > limit && item.isDrawing))
            return growth;
        // A line that stands too far can be the label of a drawing behind it.
        if (gap > limit)
            continue;
        if (growth.isEmpty())
            growth.firstGap = gap;
        Rect taken = item.bounds;
        if (item.isDrawing && isRule(taken))
            taken = taken.united(lastRule(nearest, i));
        growth.hasDrawings |= item.isDrawing;
        growth.area = growth.area.united(taken);
        area = area.united(taken);
        reach = below ? start.minY() - area.minY() : area.maxY() - start.maxY();
    }
    growth.isOpen = true;
    return growth;
}

bool RegionGrower::isBelowChosen(const Growth &above, const Growth &below) const
{
    if (above.isEmpty() || below.isEmpty())
        return !below.isEmpty();
    if (above.hasDrawings != below.hasDrawings)
        return below.hasDrawings;
    if (m_page.preferred == Side::Nearer)
        return below.firstGap < above.firstGap;
    return m_page.preferred == Side::Below;
}

std::optional<CaptionSurroundings::Side> RegionGrower::onlySide() const
{
    const bool hasAbove = !grow(m_start, false, {}).isEmpty();
    const bool hasBelow = !grow(m_start, true, {}).isEmpty();
    if (hasAbove == hasBelow)
        return std::nullopt;
    return hasBelow ? Side::Below : Side::Above;
}

Rect RegionGrower::withNeighbours(Rect area) const
{
    const auto isBeside = [&area](const Rect &rect) {
        const double y = rect.center().y;
        return y >= area.minY() && y <= area.maxY() && rect.minX() <= area.maxX() + labelGap &&
               rect.maxX() >= area.minX() - labelGap;
    };
    // What is taken in can bring more beside it; few figures need more than two rounds.
    constexpr int rounds = 4;
    for (int round = 0; round < rounds; ++round) {
        Rect grown = area;
        for (const auto &line : m_page.lines) {
            if (line.kind == Kind::Free && isBeside(line.bounds))
                grown = grown.united(line.bounds);
        }
        for (const Rect &drawing : m_page.drawings) {
            if (isBeside(drawing))
                grown = grown.united(drawing);
        }
        if (grown == area)
            break;
        area = grown;
    }
    return area;
}

RegionGrower::Region RegionGrower::grow() const
{
    const Growth above = grow(m_start, false, {});
    const Growth below = grow(m_start, true, {});
    Region region{m_start, false};
    if (above.isEmpty() && below.isEmpty()) {
        region.area = withBlankAbove();
        region.isOpenBelow = below.isOpen && m_page.preferred != Side::Above;
    } else {
        const bool isBelow = isBelowChosen(above, below);
        const Growth &chosen = isBelow ? below : above;
        Rect area = withNeighbours(chosen.area);
        // What stands at the sides can reach further than what they were taken in for.
        if (area != chosen.area)
            area = withNeighbours(area.united(grow(area, isBelow, chosen).area));
        region.area = m_start.united(area);
        region.isOpenBelow = isBelow && below.isOpen;
    }
    // Ink can stand out of the cells of glyphs.
    region.area = region.area.insetBy(-inkMargin, -inkMargin).intersection(m_page.box);
    return region;
}

Rect RegionGrower::withBlankAbove() const
{
    double end = m_page.box.maxY();
    for (const auto &line : m_page.lines) {
        if (line.bounds.minY() >= m_start.maxY() && overlapsSideways(line.bounds, m_start))
            end = std::min(end, line.bounds.minY());
    }
    Rect area = m_start;
    if (end - m_start.maxY() > hiddenDrawing)
        area.size.height = end - m_start.minY();
    return area;
}

} // namespace Tavrin
