// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/WholePlace.h>

#include <cmath>

namespace Tavrin
{

namespace
{

/// How far above the heading a place is at least, in points, so that no rounding puts it on it.
constexpr double clearance = 0.5;

} // namespace

Point wholePlace(Point corner, const PageGeometry &geometry)
{
    const Point at = geometry.toPage(Point{corner.x, corner.y + clearance});
    const Point beyond = geometry.toPage(Point{corner.x - 1, corner.y + clearance + 1});
    const auto outward = [](double value, double further) {
        return further > value ? std::ceil(value) : std::floor(value);
    };
    return {outward(at.x, beyond.x), outward(at.y, beyond.y)};
}

} // namespace Tavrin
