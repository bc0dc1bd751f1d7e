// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <vector>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// What is printed around a caption, as boxes in upright space.
struct CaptionSurroundings {
    enum class Kind {
        /// Part of a figure or table, if near enough.
        Free,
        /// Text of the body: ends a region, but in a drawing or between the rules of a table.
        Body,
        /// A heading, or the caption of something else: ends a region in any case.
        Barrier,
    };
    struct Line {
        Rect bounds;
        Kind kind = Kind::Free;
    };
    enum class Side { Above, Below, Nearer };

    Rect caption;
    std::vector<Line> lines;
    std::vector<Rect> drawings;
    /// The area of the page that counts.
    Rect box;
    /// Where to look if there is something on both sides.
    Side preferred = Side::Nearer;
};

/// Grows the region of a figure or table from its caption, upward or downward, over drawings and
/// lines as long as one follows close upon the other. Knows boxes alone.
class RegionGrower
{
public:
    struct Region {
        Rect area;
        /// Whether it runs down to the end of the page with nothing to end it.
        bool isOpenBelow = false;
    };

    explicit RegionGrower(CaptionSurroundings surroundings);

    Region grow() const;
    /// On which side of the caption there is something; nothing if on both or on none.
    std::optional<CaptionSurroundings::Side> onlySide() const;

private:
    struct Item;
    struct Growth;

    std::vector<Item> items(const Rect &start, bool below) const;
    /// Goes on with a growth from the edge of `start`.
    Growth grow(const Rect &start, bool below, Growth growth) const;
    /// The last rule of the table that begins with this one; the same rule if there is no more.
    Rect lastRule(const std::vector<Item> &items, std::size_t rule) const;
    bool isBelowChosen(const Growth &above, const Growth &below) const;
    /// The caption with the blank above it, if that is large enough to hide a drawing which
    /// neither text nor engine tells.
    Rect withBlankAbove() const;
    /// The area with labels and drawings at its sides.
    Rect withNeighbours(Rect area) const;

    CaptionSurroundings m_page;
    Rect m_start;
};

} // namespace Tavrin
