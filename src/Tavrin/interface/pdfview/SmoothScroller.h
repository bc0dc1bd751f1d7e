// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractScrollArea>
#include <QPoint>
#include <QVariantAnimation>

namespace Tavrin
{

/// Moves the scroll bars of a view in a short glide, or at once where the desktop wants no
/// animation.
class SmoothScroller : public QObject
{
    Q_OBJECT

public:
    explicit SmoothScroller(QAbstractScrollArea *area);

    /// Where the glide ends; what the scroll bars say when there is none.
    QPoint target() const;
    void scrollTo(QPoint target);
    void scrollBy(QPoint delta) { scrollTo(target() + delta); }
    void jumpTo(QPoint target);
    bool isMoving() const { return m_animation.state() == QAbstractAnimation::Running; }
    void stop() { m_animation.stop(); }

private:
    QPoint position() const;
    QPoint bounded(QPoint point) const;
    void apply(QPoint point);

    QAbstractScrollArea *m_area;
    QVariantAnimation m_animation;
};

} // namespace Tavrin
