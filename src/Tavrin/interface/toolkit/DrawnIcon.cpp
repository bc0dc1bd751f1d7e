// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/DrawnIcon.h>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace Tavrin
{

namespace
{

/// Shapes are told in a square of this size, with y growing downward.
constexpr double side = 16;
constexpr double lineWidth = 1.3;

struct Drawing {
    QPainterPath lines;
    QPainterPath areas;
};

QPainterPath polyline(const QPolygonF &points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

QPainterPath arrow()
{
    QPainterPath path = polyline({{2.5, 8}, {13.5, 8}});
    path.addPath(polyline({{7, 3.5}, {2.5, 8}, {7, 12.5}}));
    return path;
}

QPainterPath lens()
{
    QPainterPath path;
    path.addEllipse(QPointF(6.8, 6.8), 4.6, 4.6);
    path.addPath(polyline({{10.2, 10.2}, {14, 14}}));
    return path;
}

QPainterPath plusOrMinus(bool isPlus)
{
    QPainterPath path = polyline({{3, 8}, {13, 8}});
    if (isPlus)
        path.addPath(polyline({{8, 3}, {8, 13}}));
    return path;
}

Drawing sidebar()
{
    Drawing result;
    result.lines.addRoundedRect(QRectF(1.5, 2.5, 13, 11), 1.5, 1.5);
    result.lines.addPath(polyline({{6, 2.5}, {6, 13.5}}));
    result.areas.addRect(QRectF(3, 4.6, 1.6, 1));
    result.areas.addRect(QRectF(3, 6.8, 1.6, 1));
    result.areas.addRect(QRectF(3, 9, 1.6, 1));
    return result;
}

QPainterPath fitWidth()
{
    QPainterPath path = polyline({{1.5, 2}, {1.5, 14}});
    path.addPath(polyline({{14.5, 2}, {14.5, 14}}));
    path.addPath(polyline({{4, 8}, {12, 8}}));
    path.addPath(polyline({{6.2, 5.8}, {4, 8}, {6.2, 10.2}}));
    path.addPath(polyline({{9.8, 5.8}, {12, 8}, {9.8, 10.2}}));
    return path;
}

QPainterPath fitPage()
{
    QPainterPath path;
    path.addRect(QRectF(4.5, 3.5, 7, 9));
    path.addPath(polyline({{1.5, 4}, {1.5, 1}, {4.5, 1}}));
    path.addPath(polyline({{11.5, 1}, {14.5, 1}, {14.5, 4}}));
    path.addPath(polyline({{14.5, 12}, {14.5, 15}, {11.5, 15}}));
    path.addPath(polyline({{4.5, 15}, {1.5, 15}, {1.5, 12}}));
    return path;
}

Drawing invert()
{
    Drawing result;
    result.lines.addEllipse(QPointF(8, 8), 6, 6);
    result.areas.moveTo(8, 2);
    result.areas.arcTo(QRectF(2, 2, 12, 12), 90, 180);
    result.areas.closeSubpath();
    return result;
}

Drawing outline()
{
    Drawing result;
    for (const double y : {3.5, 8.0, 12.5}) {
        const double indent = y == 3.5 ? 0 : 3;
        result.areas.addEllipse(QPointF(2.8 + indent, y), 1.1, 1.1);
        result.lines.addPath(polyline({{6 + indent, y}, {14, y}}));
    }
    return result;
}

QPainterPath cross()
{
    QPainterPath path = polyline({{4, 4}, {12, 12}});
    path.addPath(polyline({{12, 4}, {4, 12}}));
    return path;
}

Drawing drawingOf(IconShape shape)
{
    switch (shape) {
    case IconShape::Sidebar:
        return sidebar();
    case IconShape::Back:
        return {arrow(), {}};
    case IconShape::Forward: {
        const QTransform mirrored(-1, 0, 0, 1, side, 0);
        return {mirrored.map(arrow()), {}};
    }
    case IconShape::ZoomOut:
        return {plusOrMinus(false), {}};
    case IconShape::ZoomIn:
        return {plusOrMinus(true), {}};
    case IconShape::FitWidth:
        return {fitWidth(), {}};
    case IconShape::FitPage:
        return {fitPage(), {}};
    case IconShape::Find:
        return {lens(), {}};
    case IconShape::Invert:
        return invert();
    case IconShape::Outline:
        return outline();
    case IconShape::Close:
        return {cross(), {}};
    }
    return {};
}

/// Those that show where things are; a lens or a half-filled circle looks the same everywhere.
bool isTurned(IconShape shape)
{
    return shape == IconShape::Sidebar || shape == IconShape::Back || shape == IconShape::Forward ||
           shape == IconShape::Outline;
}

class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(IconShape shape) : m_shape(shape) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
        const double scale = std::min(rect.width(), rect.height()) / side;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        const bool isMirrored = isTurned(m_shape) && QGuiApplication::isRightToLeft();
        painter->scale(isMirrored ? -scale : scale, scale);
        painter->translate(-side / 2, -side / 2);
        const Drawing drawing = drawingOf(m_shape);
        painter->fillPath(drawing.areas, color);
        painter->strokePath(drawing.lines,
                            QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect({0, 0}, size), mode, state);
        return result;
    }
    QIconEngine *clone() const override { return new DrawnIconEngine(*this); }

private:
    IconShape m_shape;
};

} // namespace

QIcon drawnIcon(IconShape shape)
{
    return QIcon(new DrawnIconEngine(shape));
}

} // namespace Tavrin
