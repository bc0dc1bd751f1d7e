// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PagePainter.h>

#include <Tavrin/interface/pdfview/InvertedPage.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QFontInfo>
#include <QRegion>

namespace Tavrin
{

namespace
{

constexpr double shadowStrength = 16 / 255.0;
constexpr double edgeStrength = 40 / 255.0;

QColor mixed(const QColor &under, const QColor &over, double strength)
{
    const auto mix = [strength](int a, int b) { return qRound(a + (b - a) * strength); };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()),
            mix(under.blue(), over.blue())};
}

} // namespace

QTransform PlacedPage::transform() const
{
    const Point zero = geometry.toUpright(Point{0, 0});
    const Point right = geometry.toUpright(Point{1, 0});
    const Point up = geometry.toUpright(Point{0, 1});
    const double scale = whole.scale;
    const double bottom = origin.y() + geometry.uprightSize().height * scale;
    return {(right.x - zero.x) * scale, -(right.y - zero.y) * scale, (up.x - zero.x) * scale,
            -(up.y - zero.y) * scale,   origin.x() + zero.x * scale, bottom - zero.y * scale};
}

void PagePainter::paintEdge(QPainter &painter, const PlacedPage &page) const
{
    // In solid colours, beside the page alone: blending takes longer than showing a page's picture.
    const QRect rect = page.rect();
    QColor color = m_desk;
    for (int width = 3; width > 0; --width) {
        color = mixed(color, Qt::black, shadowStrength);
        for (const QRect &strip :
             QRegion(rect.adjusted(-width, 1 - width, width, width + 1)) - rect)
            painter.fillRect(strip, color);
    }
    // A shadow isn't seen in the dark, an edge is.
    if (page.whole.isInverted) {
        for (const QRect &strip : QRegion(rect.adjusted(-1, -1, 1, 1)) - rect)
            painter.fillRect(strip, mixed(m_desk, Qt::white, edgeStrength));
    }
}

void PagePainter::paintPaper(QPainter &painter, const PlacedPage &page) const
{
    const QColor paper = page.whole.isInverted ? QColor(invertedPaper) : QColor(Qt::white);
    painter.fillRect(page.rect(), paper);
}

void PagePainter::paint(QPainter &painter, const PlacedPage &page, const QRect &area) const
{
    paintEdge(painter, page);
    const auto tiles = tilesOf(page.whole, area.translated(-page.origin));
    const bool isComplete = std::all_of(tiles.begin(), tiles.end(), [this](const PageTile &tile) {
        return m_tiles.contains(tile);
    });
    if (!isComplete) {
        paintPaper(painter, page);
        paintStandIns(painter, page, area);
    }
    for (const PageTile &tile : tiles) {
        const QImage image = m_tiles.image(tile);
        if (!image.isNull())
            painter.drawImage(tile.rect.translated(page.origin).topLeft(), image);
    }
}

void PagePainter::paintStandIns(QPainter &painter, const PlacedPage &page, const QRect &area) const
{
    // Of the scale that was seen last; scaling is dear, and all of them would look alike.
    std::vector<std::pair<PageTile, QImage>> found;
    m_tiles.forEachOfPage(page.whole.page, [&](const PageTile &tile, const QImage &image) {
        if (tile.isInverted == page.whole.isInverted && tile.scale != page.whole.scale)
            found.emplace_back(tile, image);
    });
    for (const auto &[tile, image] : found) {
        const double ratio = page.whole.scale / tile.scale;
        const QRectF place(page.origin + QPointF(tile.rect.topLeft()) * ratio,
                           QSizeF(tile.rect.size()) * ratio);
        const QRectF seen = place & QRectF(area);
        if (tile.scale != found.back().first.scale || seen.isEmpty())
            continue;
        const QRectF source((seen.topLeft() - place.topLeft()) / ratio, seen.size() / ratio);
        painter.drawImage(seen, image, source);
    }
}

void PagePainter::paintFailure(QPainter &painter, const PlacedPage &page, const QRect &seen) const
{
    paintEdge(painter, page);
    paintPaper(painter, page);
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * painter.device()->devicePixelRatioF()));
    painter.setFont(font);
    painter.setPen(page.whole.isInverted ? QColor(190, 190, 190) : QColor(90, 90, 90));
    painter.drawText((page.rect() & seen).adjusted(12, 12, -12, -12),
                     Qt::AlignCenter | Qt::TextWordWrap,
                     localized("This page can't be shown.", "In place of a broken page of a PDF"));
    painter.restore();
}

void PagePainter::paintMarks(QPainter &painter, const PlacedPage &page,
                             const std::vector<Rect> &boxes, const QColor &color)
{
    painter.save();
    painter.setCompositionMode(page.whole.isInverted ? QPainter::CompositionMode_Screen
                                                     : QPainter::CompositionMode_Multiply);
    const QTransform transform = page.transform();
    for (const Rect &box : boxes) {
        const QRectF rect(box.minX(), box.minY(), box.size.width, box.size.height);
        painter.fillRect(transform.mapRect(rect).toAlignedRect(), color);
    }
    painter.restore();
}

} // namespace Tavrin
