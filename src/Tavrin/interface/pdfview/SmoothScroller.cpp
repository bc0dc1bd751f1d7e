// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/SmoothScroller.h>

#include <QScrollBar>
#include <QStyle>

namespace Tavrin
{

namespace
{

constexpr int glideTime = 120;

} // namespace

SmoothScroller::SmoothScroller(QAbstractScrollArea *area) : QObject(area), m_area(area)
{
    m_animation.setDuration(glideTime);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { apply(value.toPoint()); });
}

QPoint SmoothScroller::position() const
{
    return {m_area->horizontalScrollBar()->value(), m_area->verticalScrollBar()->value()};
}

QPoint SmoothScroller::target() const
{
    return isMoving() ? m_animation.endValue().toPoint() : position();
}

QPoint SmoothScroller::bounded(QPoint point) const
{
    const QScrollBar *across = m_area->horizontalScrollBar();
    const QScrollBar *down = m_area->verticalScrollBar();
    return {qBound(across->minimum(), point.x(), across->maximum()),
            qBound(down->minimum(), point.y(), down->maximum())};
}

void SmoothScroller::scrollTo(QPoint target)
{
    target = bounded(target);
    const bool isAnimated =
        m_area->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, m_area) > 0;
    if (!isAnimated || !m_area->isVisible())
        return jumpTo(target);
    m_animation.stop();
    m_animation.setStartValue(position());
    m_animation.setEndValue(target);
    m_animation.start();
}

void SmoothScroller::jumpTo(QPoint target)
{
    m_animation.stop();
    apply(bounded(target));
}

void SmoothScroller::apply(QPoint point)
{
    m_area->horizontalScrollBar()->setValue(point.x());
    m_area->verticalScrollBar()->setValue(point.y());
}

} // namespace Tavrin
