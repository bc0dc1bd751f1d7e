// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QRect>

#include <vector>

#include <Tavrin/platform/PageGeometry.h>

namespace Tavrin
{

/// A rectangle of a page as it is drawn at one scale.
struct PageTile {
    int page = 0;
    /// Device pixels a point.
    double scale = 1;
    /// In device pixels of the whole page, origin at its upper left.
    QRect rect;
    /// Light on dark in place of dark on light.
    bool isInverted = false;

    qsizetype byteCount() const { return qsizetype(rect.width()) * rect.height() * 4; }

    friend bool operator==(const PageTile &, const PageTile &) = default;
    friend size_t qHash(const PageTile &tile, size_t seed = 0)
    {
        return qHashMulti(seed, tile.page, tile.scale, tile.rect.x(), tile.rect.y(),
                          tile.isInverted);
    }
};

/// How many device pixels a page has at a scale.
QSize pixelSize(const Size &page, double scale);

/// The tiles of a page that an area of it touches, row by row. A page of common size is one
/// tile, since each tile costs a pass over the page's content.
std::vector<PageTile> tilesOf(const PageTile &wholePage, const QRect &area);

/// The part of page space that a tile shows.
Rect pageArea(const PageTile &tile, const PageGeometry &geometry);

} // namespace Tavrin
