// SPDX-License-Identifier: Apache-2.0
#include "PagePicture.h"

#include <QHash>
#include <QPainter>

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// Draws in page space onto a picture of the displayed page.
class Overlay
{
public:
    Overlay(QImage &image, const HostPDFPage &page, double scale)
        : m_painter(&image), m_geometry(page.geometry()), m_scale(scale)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        QFont font = m_painter.font();
        font.setPixelSize(static_cast<int>(5 * scale));
        m_painter.setFont(font);
    }

    void frame(const Rect &rect, const QColor &color, const QString &caption)
    {
        const QRectF area(device({rect.minX(), rect.minY()}), device({rect.maxX(), rect.maxY()}));
        const QRectF box = area.normalized();
        QColor wash = color;
        wash.setAlpha(30);
        m_painter.setPen(QPen(color, 0.4 * m_scale));
        m_painter.setBrush(wash);
        m_painter.drawRect(box);
        const QRectF place(box.left() - 22 * m_scale, box.top(), 20 * m_scale, box.height());
        m_painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, caption);
    }

    void region(const Rect &rect, const QColor &color, const QString &caption)
    {
        const QRectF box =
            QRectF(device({rect.minX(), rect.minY()}), device({rect.maxX(), rect.maxY()}))
                .normalized();
        m_painter.setPen(QPen(color, 1.2 * m_scale));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(box);
        m_painter.drawText(box.topRight() + QPointF(2 * m_scale, 6 * m_scale), caption);
    }

    /// A line across the page at x.
    void margin(double x)
    {
        const Rect box = m_geometry.cropBox;
        m_painter.setPen(QPen(QColor(0, 0, 0, 90), 0.3 * m_scale, Qt::DashLine));
        m_painter.drawLine(device({x, box.minY()}), device({x, box.maxY()}));
    }

    void mark(Point point, const QString &caption)
    {
        const QPointF at = device(point);
        m_painter.setPen(QPen(QColor(200, 0, 120), 0.5 * m_scale));
        m_painter.drawLine(at, at + QPointF(12 * m_scale, 0));
        m_painter.drawLine(at, at + QPointF(0, 4 * m_scale));
        m_painter.drawText(at + QPointF(13 * m_scale, 2 * m_scale), caption);
    }

private:
    QPointF device(Point page) const
    {
        const Point upright = m_geometry.toUpright(page);
        return {upright.x * m_scale, (m_geometry.uprightSize().height - upright.y) * m_scale};
    }

    QPainter m_painter;
    PageGeometry m_geometry;
    double m_scale;
};

/// One colour a style, in the order in which the styles appear.
class StyleColors
{
public:
    QColor color(const TextFont &font)
    {
        static const QColor colors[] = {QColor(0, 90, 200),  QColor(200, 60, 0),
                                        QColor(0, 140, 60),  QColor(140, 0, 170),
                                        QColor(150, 110, 0), QColor(0, 140, 150)};
        const QString key =
            u"%1/%2/%3"_s.arg(font.family).arg(font.pointSize, 0, 'f', 1).arg(font.traits);
        const auto it = m_seen.constFind(key);
        const qsizetype number = it == m_seen.constEnd() ? m_seen.size() : *it;
        m_seen.insert(key, number);
        return colors[number % static_cast<qsizetype>(std::size(colors))];
    }

private:
    QHash<QString, qsizetype> m_seen;
};

} // namespace

QImage pagePicture(const PageInspection &inspection, double scale)
{
    const HostPDFPage &page = inspection.page();
    QImage image = page.draw(page.bounds(PDFBox::Crop), {.scale = scale});
    if (image.isNull())
        return image;
    image = image.convertToFormat(QImage::Format_RGB32);
    Overlay overlay(image, page, scale);
    StyleColors colors;
    int order = 0;
    for (const PageInspection::Line &line : inspection.lines()) {
        // Lines that are no body text are grey.
        const QColor color = line.isBody ? colors.color(line.font) : QColor(130, 130, 130);
        const QString mark = line.isHeading ? u"#"_s : QString();
        overlay.frame(line.bounds, color, QString::number(++order) + mark);
    }
    if (inspection.leftMargin()) {
        overlay.margin(*inspection.leftMargin() + page.bounds(PDFBox::Media).minX());
        overlay.region(*inspection.readingArea(), QColor(0, 0, 0, 90), QString());
    }
    for (const PageInspection::Region &region : inspection.regions()) {
        const QColor color = region.isTextual ? QColor(0, 150, 0) : QColor(220, 0, 0);
        overlay.region(region.rect, color, region.label);
    }
    for (const PageInspection::Place &place : inspection.destinations())
        overlay.mark(place.point, place.name);
    return image;
}

} // namespace Tavrin::Cli
