// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>

#include <QPainter>

namespace Tavrin
{

namespace
{

constexpr double strokeWidth = 2.0;
constexpr double cornerRadius = 5.0;
constexpr float tintAlpha = 0.1F;

QRectF toQt(const Rect &rect)
{
    return {rect.minX(), rect.minY(), rect.size.width, rect.size.height};
}

} // namespace

EntryHighlightPDFView::EntryHighlightPDFView(QWidget *parent) : HostPDFView(parent) {}

void EntryHighlightPDFView::drawOverPage(const HostPDFPage &page, QPainter &context)
{
    HostPDFView::drawOverPage(page, context);
    if (!document())
        return;
    const int index = page.index();
    if (pageRects) {
        if (const auto found = pageRects->find(index); found != pageRects->end())
            drawEntryOutline(found->second, context);
    }
    if (coverageHighlights) {
        if (const auto found = coverageHighlights->find(index); found != coverageHighlights->end())
            drawCoverage(found->second, context);
    }
    m_flash.draw(page, context, palette().color(QPalette::Active, QPalette::Highlight));
}

void EntryHighlightPDFView::drawEntryOutline(const Rect &rect, QPainter &context) const
{
    if (rect.isNull())
        return;
    context.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), strokeWidth));
    context.setBrush(Qt::NoBrush);
    context.drawRoundedRect(toQt(rect), cornerRadius, cornerRadius);
}

void EntryHighlightPDFView::drawCoverage(const std::vector<Rect> &rects, QPainter &context) const
{
    QColor tint = coverageHighlightColor;
    tint.setAlphaF(tintAlpha);
    QPen bar(coverageHighlightColor, strokeWidth);
    bar.setCapStyle(Qt::FlatCap);
    for (const Rect &rect : rects) {
        if (rect.isNull())
            continue;
        context.setPen(bar);
        context.drawLine(QPointF(rect.minX(), rect.minY()), QPointF(rect.minX(), rect.maxY()));
        context.fillRect(toQt(rect), tint);
    }
}

} // namespace Tavrin
