// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PageGeometry.h>

namespace Tavrin
{

Size PageGeometry::uprightSize() const
{
    const bool sideways = rotation == 90 || rotation == 270;
    return sideways ? Size{cropBox.size.height, cropBox.size.width} : cropBox.size;
}

Point PageGeometry::toPage(Point upright) const
{
    switch (rotation) {
    case 90:
        return {cropBox.maxX() - upright.y, cropBox.minY() + upright.x};
    case 180:
        return {cropBox.maxX() - upright.x, cropBox.maxY() - upright.y};
    case 270:
        return {cropBox.minX() + upright.y, cropBox.maxY() - upright.x};
    default:
        return {cropBox.minX() + upright.x, cropBox.minY() + upright.y};
    }
}

Point PageGeometry::toUpright(Point page) const
{
    switch (rotation) {
    case 90:
        return {page.y - cropBox.minY(), cropBox.maxX() - page.x};
    case 180:
        return {cropBox.maxX() - page.x, cropBox.maxY() - page.y};
    case 270:
        return {cropBox.maxY() - page.y, page.x - cropBox.minX()};
    default:
        return {page.x - cropBox.minX(), page.y - cropBox.minY()};
    }
}

Rect PageGeometry::toPage(const Rect &upright) const
{
    if (upright.isNull())
        return upright;
    return Rect::fromCorners(toPage(upright.origin), toPage(Point{upright.maxX(), upright.maxY()}));
}

Rect PageGeometry::toUpright(const Rect &page) const
{
    if (page.isNull())
        return page;
    return Rect::fromCorners(toUpright(page.origin), toUpright(Point{page.maxX(), page.maxY()}));
}

} // namespace Tavrin
