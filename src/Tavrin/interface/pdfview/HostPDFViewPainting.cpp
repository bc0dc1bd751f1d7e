// SPDX-License-Identifier: Apache-2.0
// What is wanted of the renderer, and how pages come onto the screen.
#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <QPaintEvent>
#include <QPainter>
#include <QRegion>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace Tavrin
{

namespace
{

/// Share of the tile bytes that wanted tiles may fill; the rest is for those seen before.
constexpr double wantedShare = 0.75;

const QColor selectionOnPaper(180, 210, 255);
const QColor selectionOnDark(40, 75, 120);
const QColor hitOnPaper(255, 236, 140);
const QColor hitOnDark(95, 80, 10);
const QColor currentHitOnPaper(255, 190, 90);
const QColor currentHitOnDark(150, 90, 10);

} // namespace

std::vector<PageTile> HostPDFView::tilesToDraw(int page, const QRectF &area) const
{
    if (m_failures.contains(page) &&
        (!m_pages[static_cast<std::size_t>(page)] ||
         m_failures.value(page) == m_layout.scale() * devicePixelRatio()))
        return {};
    const PlacedPage place = placed(page);
    const double ratio = devicePixelRatio();
    const QRectF inView = area.translated(-scrollOffset());
    const QRect device = QRectF(inView.topLeft() * ratio, inView.size() * ratio).toAlignedRect();
    auto tiles = tilesOf(place.whole, device.translated(-place.origin));
    const QPoint middle = (QRectF(viewport()->rect()).center() * ratio).toPoint() - place.origin;
    const auto distance = [middle](const PageTile &tile) {
        return (tile.rect.center() - middle).manhattanLength();
    };
    std::stable_sort(tiles.begin(), tiles.end(), [&](const PageTile &a, const PageTile &b) {
        return distance(a) < distance(b);
    });
    return tiles;
}

void HostPDFView::updateWanted()
{
    if (m_isLayingOut || m_isHolding || !isReady())
        return;
    const QRectF seen = visibleRect();
    std::vector<PageTile> tiles;
    qsizetype bytes = 0;
    const auto add = [&](int page, const QRectF &area) {
        for (const PageTile &tile : tilesToDraw(page, area)) {
            bytes += tile.byteCount();
            const bool isNew = !m_tiles.contains(tile) &&
                               std::find(tiles.begin(), tiles.end(), tile) == tiles.end();
            if (isNew && double(bytes) <= double(tileBytes) * wantedShare)
                tiles.push_back(tile);
        }
    };
    // From where one reads on, then what is above it, then a screen on in the direction of
    // reading, then one behind.
    auto pages = visiblePages();
    const int first = m_layout.pageAt(seen.top() + readingLine);
    std::stable_partition(pages.begin(), pages.end(), [first](int page) { return page >= first; });
    std::vector<int> contents;
    for (const int page : pages) {
        add(page, seen);
        if (!m_contents.contains(page))
            contents.push_back(page);
    }
    const std::size_t urgent = tiles.size();
    for (const int side : {m_direction, -m_direction}) {
        const QRectF next = seen.translated(0, side * seen.height());
        for (int page = m_layout.pageAt(next.top()); page <= m_layout.pageAt(next.bottom()); ++page)
            add(page, next);
    }
    m_wasFullyDrawn = m_wasFullyDrawn && urgent == 0;
    m_renderer.want(std::move(tiles), urgent, std::move(contents));
    tellWhenDrawn();
}

bool HostPDFView::isDrawn(int page) const
{
    if (page < 0 || page >= m_layout.pageCount() || !isReady())
        return false;
    const auto tiles = tilesToDraw(page, visibleRect());
    return std::all_of(tiles.begin(), tiles.end(),
                       [this](const PageTile &tile) { return m_tiles.contains(tile); });
}

bool HostPDFView::isFullyDrawn() const
{
    const auto pages = visiblePages();
    return isReady() &&
           std::all_of(pages.begin(), pages.end(), [this](int page) { return isDrawn(page); });
}

void HostPDFView::tellWhenDrawn()
{
    if (!m_wasFullyDrawn && isFullyDrawn()) {
        m_wasFullyDrawn = true;
        Q_EMIT fullyDrawn();
    }
}

void HostPDFView::drawOverPage(const HostPDFPage &, QPainter &) {}

void HostPDFView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    if (!m_document) {
        painter.fillRect(event->rect(), desk());
        return paintPlaceholder(painter);
    }
    const double ratio = devicePixelRatio();
    if (std::exchange(m_paintedRatio, ratio) != ratio)
        updateWanted();
    painter.scale(1 / ratio, 1 / ratio);
    const QRectF logical(event->rect());
    const QRect device = QRectF(logical.topLeft() * ratio, logical.size() * ratio).toAlignedRect();
    // Not below the pages, which cover it.
    QRegion around(device);
    for (const int page : visiblePages())
        around -= placed(page).rect();
    for (const QRect &rect : around)
        painter.fillRect(rect, desk());
    for (const int page : visiblePages()) {
        if (placed(page).rect().adjusted(-4, -4, 4, 4).intersects(device))
            paintPage(painter, page, device);
    }
}

QColor HostPDFView::desk() const
{
    // Darker than a window in the light, and than its paper in the dark.
    const QColor window = palette().color(QPalette::Window);
    return window.darker(window.lightness() > 127 ? 112 : 180);
}

void HostPDFView::paintPage(QPainter &painter, int page, const QRect &deviceArea)
{
    const PlacedPage place = placed(page);
    const PagePainter pagePainter(m_tiles, desk());
    const auto &shown = m_pages[static_cast<std::size_t>(page)];
    const auto failure = m_failures.constFind(page);
    const QSizeF viewSize = QSizeF(viewport()->size()) * devicePixelRatio();
    const QRect wholeView({0, 0}, viewSize.toSize());
    if (failure != m_failures.cend() && (!shown || *failure == place.whole.scale))
        return pagePainter.paintFailure(painter, place, wholeView);
    pagePainter.paint(painter, place, deviceArea);
    paintOverlays(painter, place, page);
    painter.save();
    painter.setClipRect(place.rect());
    painter.setTransform(place.transform() * painter.transform());
    painter.setRenderHint(QPainter::Antialiasing);
    drawOverPage(*shown, painter);
    painter.restore();
}

void HostPDFView::paintOverlays(QPainter &painter, const PlacedPage &place, int page)
{
    const auto text = textOf(page);
    if (!text)
        return;
    for (const TextRange &range : m_finder.hitsOn(page)) {
        const bool isCurrent = m_currentHit == FindHit{page, range};
        const QColor plain = m_isInverted ? hitOnDark : hitOnPaper;
        const QColor current = m_isInverted ? currentHitOnDark : currentHitOnPaper;
        PagePainter::paintMarks(painter, place, TextSelection::boxes(*text, range),
                                isCurrent ? current : plain);
    }
    PagePainter::paintMarks(painter, place, selectionBoxes(page),
                            m_isInverted ? selectionOnDark : selectionOnPaper);
}

void HostPDFView::paintPlaceholder(QPainter &painter)
{
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

} // namespace Tavrin
