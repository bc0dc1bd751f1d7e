// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PageTile.h>

#include <cmath>

namespace Tavrin
{

namespace
{

/// A page up to this many pixels each way is one tile, ...
constexpr int wholeSide = 2048;
/// ... a bigger one is cut into tiles of this size.
constexpr int cutSide = 1024;

} // namespace

QSize pixelSize(const Size &page, double scale)
{
    // The limit stands far beyond the largest scale of a page that a file can ask for.
    const auto pixels = [scale](double points) {
        return static_cast<int>(std::min(1e8, std::max(1.0, std::round(points * scale))));
    };
    return {pixels(page.width), pixels(page.height)};
}

std::vector<PageTile> tilesOf(const PageTile &wholePage, const QRect &area)
{
    const QRect wanted = area & wholePage.rect;
    if (wanted.isEmpty())
        return {};
    if (std::max(wholePage.rect.width(), wholePage.rect.height()) <= wholeSide)
        return {wholePage};
    std::vector<PageTile> tiles;
    for (int row = wanted.top() / cutSide; row <= wanted.bottom() / cutSide; ++row) {
        for (int column = wanted.left() / cutSide; column <= wanted.right() / cutSide; ++column) {
            PageTile tile = wholePage;
            tile.rect &= QRect(column * cutSide, row * cutSide, cutSide, cutSide);
            tiles.push_back(tile);
        }
    }
    return tiles;
}

Rect pageArea(const PageTile &tile, const PageGeometry &geometry)
{
    const double top = geometry.uprightSize().height - tile.rect.y() / tile.scale;
    const double height = tile.rect.height() / tile.scale;
    return geometry.toPage(
        Rect{{tile.rect.x() / tile.scale, top - height}, {tile.rect.width() / tile.scale, height}});
}

} // namespace Tavrin
