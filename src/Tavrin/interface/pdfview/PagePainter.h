// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPainter>

#include <vector>

#include <Tavrin/interface/pdfview/TileCache.h>

namespace Tavrin
{

/// A page as it lies in a window.
struct PlacedPage {
    /// The whole page as one tile.
    PageTile whole;
    /// Its upper left corner in device pixels of the window.
    QPoint origin;
    PageGeometry geometry;

    /// In device pixels of the window.
    QRect rect() const { return whole.rect.translated(origin); }
    /// From page space to device pixels of the window.
    QTransform transform() const;
};

/// Paints pages out of drawn tiles: where one is missing, a tile of another scale stands in for
/// it, else plain paper.
///
/// All works on painters that count in device pixels.
class PagePainter
{
public:
    /// `desk` is the colour around the pages, on which their shadows fall.
    PagePainter(TileCache &tiles, const QColor &desk) : m_tiles(tiles), m_desk(desk) {}

    /// Paper with its shadow, and what is drawn of the page within `area`.
    void paint(QPainter &painter, const PlacedPage &page, const QRect &area) const;
    /// In place of a page that can't be drawn: paper that says so where it is seen.
    void paintFailure(QPainter &painter, const PlacedPage &page, const QRect &seen) const;
    /// Marks boxes of page space with a colour, as a felt pen would.
    static void paintMarks(QPainter &painter, const PlacedPage &page,
                           const std::vector<Rect> &boxes, const QColor &color);

private:
    void paintEdge(QPainter &painter, const PlacedPage &page) const;
    void paintPaper(QPainter &painter, const PlacedPage &page) const;
    void paintStandIns(QPainter &painter, const PlacedPage &page, const QRect &area) const;

    TileCache &m_tiles;
    QColor m_desk;
};

} // namespace Tavrin
