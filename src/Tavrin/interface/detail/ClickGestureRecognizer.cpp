// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/ClickGestureRecognizer.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

#include <algorithm>

namespace Tavrin
{

ClickGestureRecognizer::ClickGestureRecognizer(QWidget *widget, int numberOfClicksRequired)
    : QObject(widget), m_widget(widget), m_clicksRequired(numberOfClicksRequired)
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, [this] { Q_EMIT recognized(this); });
    widget->installEventFilter(this);
}

void ClickGestureRecognizer::setEnabled(bool enabled)
{
    m_isEnabled = enabled;
    m_isPossible = m_isPossible && enabled;
    if (!enabled)
        m_wait.stop();
}

bool ClickGestureRecognizer::eventFilter(QObject *watched, QEvent *event)
{
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (watched != m_widget || !mouse)
        return false;
    const bool isLeft = mouse->button() == Qt::LeftButton;
    if (event->type() == QEvent::MouseButtonPress && isLeft) {
        m_clicks = 1;
        press(mouse->position());
    } else if (event->type() == QEvent::MouseButtonDblClick && isLeft) {
        // The second press ends the waiting of a single click.
        ++m_clicks;
        m_wait.stop();
    } else if (event->type() == QEvent::MouseMove && mouse->buttons().testFlag(Qt::LeftButton)) {
        const double moved = (mouse->position() - m_location).manhattanLength();
        m_isPossible = m_isPossible && moved < QGuiApplication::styleHints()->startDragDistance();
    } else if (event->type() == QEvent::MouseButtonRelease && isLeft) {
        release(mouse->position());
    }
    return false;
}

void ClickGestureRecognizer::press(QPointF location)
{
    m_location = location;
    m_isPossible = m_isEnabled && (!m_delegate || m_delegate->gestureRecognizerShouldBegin(*this));
}

void ClickGestureRecognizer::release(QPointF location)
{
    const double moved = (location - m_location).manhattanLength();
    if (moved >= QGuiApplication::styleHints()->startDragDistance())
        m_isPossible = false;
    if (!m_isPossible || m_clicks != m_clicksRequired)
        return;
    if (mustWait())
        m_wait.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    else
        Q_EMIT recognized(this);
}

bool ClickGestureRecognizer::mustWait() const
{
    const auto others =
        m_widget->findChildren<ClickGestureRecognizer *>(Qt::FindDirectChildrenOnly);
    return m_delegate &&
           std::any_of(others.begin(), others.end(), [this](const ClickGestureRecognizer *other) {
               return other != this && other->m_isPossible &&
                      m_delegate->shouldRequireFailure(*this, *other);
           });
}

} // namespace Tavrin
