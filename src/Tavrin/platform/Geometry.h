// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tavrin
{

/// A place on a page, in points. In page space the origin is at the lower left and y grows upward.
/// Whoever takes or gives a point says which space it is in; see PageGeometry.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point &, const Point &) = default;
};

/// An extent in points. Of pictures and pages, in the space of the page that they belong to.
struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size &, const Size &) = default;
};

/// A rectangle with its lower left corner as origin, in points of page space.
///
/// Two states look alike and are not: an empty rectangle has a place and no area, the null
/// rectangle has no place. An intersection of two rectangles that do not touch is null.
///
/// Sides are expected not to be negative; fromCorners() makes such a rectangle out of any two
/// points.
struct Rect {
    Point origin;
    Size size;

    /// The rectangle without a place.
    ///
    /// isNull() tells it; its corners are no numbers to compute with.
    static constexpr Rect null()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return {{infinity, infinity}, {0, 0}};
    }

    /// The rectangle between two opposite corners, in whichever order they are given.
    static constexpr Rect fromCorners(Point a, Point b)
    {
        const Point lower{std::min(a.x, b.x), std::min(a.y, b.y)};
        const Point upper{std::max(a.x, b.x), std::max(a.y, b.y)};
        return {lower, {upper.x - lower.x, upper.y - lower.y}};
    }

    /// The left edge.
    constexpr double minX() const { return origin.x; }
    /// The lower edge.
    constexpr double minY() const { return origin.y; }
    /// The right edge.
    constexpr double maxX() const { return origin.x + size.width; }
    /// The upper edge.
    constexpr double maxY() const { return origin.y + size.height; }
    constexpr Point center() const
    {
        return {origin.x + size.width / 2, origin.y + size.height / 2};
    }

    /// Whether it has no place.
    bool isNull() const { return std::isinf(origin.x) || std::isinf(origin.y); }
    /// Whether it has no area: null, or without width or height.
    bool isEmpty() const { return isNull() || size.width <= 0 || size.height <= 0; }

    /// Lower and left edges belong to the rectangle, and so do the upper and right ones: a point
    /// on the border between two lines is on both.
    ///
    /// The null rectangle contains nothing.
    bool contains(Point point) const
    {
        return !isNull() && point.x >= minX() && point.x <= maxX() && point.y >= minY() &&
               point.y <= maxY();
    }

    /// The common part; null if the rectangles do not touch.
    ///
    /// Rectangles that touch at an edge have an empty one in common, which has a place.
    Rect intersection(const Rect &other) const
    {
        if (isNull() || other.isNull())
            return null();
        const Point lower{std::max(minX(), other.minX()), std::max(minY(), other.minY())};
        const Point upper{std::min(maxX(), other.maxX()), std::min(maxY(), other.maxY())};
        if (lower.x > upper.x || lower.y > upper.y)
            return null();
        return {lower, {upper.x - lower.x, upper.y - lower.y}};
    }

    /// Whether they touch or overlap.
    bool intersects(const Rect &other) const { return !intersection(other).isNull(); }

    /// The smallest rectangle that holds both; a null one adds nothing.
    Rect united(const Rect &other) const
    {
        if (isNull())
            return other;
        if (other.isNull())
            return *this;
        const Point lower{std::min(minX(), other.minX()), std::min(minY(), other.minY())};
        const Point upper{std::max(maxX(), other.maxX()), std::max(maxY(), other.maxY())};
        return {lower, {upper.x - lower.x, upper.y - lower.y}};
    }

    /// The rectangle with each side moved inward by dx and dy; negative values grow it.
    /// Null when nothing is left.
    Rect insetBy(double dx, double dy) const
    {
        if (isNull() || size.width < 2 * dx || size.height < 2 * dy)
            return null();
        return {{origin.x + dx, origin.y + dy}, {size.width - 2 * dx, size.height - 2 * dy}};
    }

    friend bool operator==(const Rect &, const Rect &) = default;
};

} // namespace Tavrin
