// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/Popover.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Tavrin
{

namespace
{

constexpr int shadowWidth = 10;
constexpr int arrowHeight = 8;
constexpr int arrowHalfWidth = 9;
constexpr int cornerRadius = 8;
/// What frame and shadow take around the view.
constexpr QMargins surroundings(shadowWidth, shadowWidth + arrowHeight, shadowWidth,
                                shadowWidth + arrowHeight);

/// The shadow gets fainter outward; drawn as rings, since an effect would draw the view through a
/// picture and blur its text on a scaled display.
void drawShadow(QPainter &painter, const QPainterPath &outline)
{
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1; ring <= shadowWidth; ++ring) {
        const int left = shadowWidth - ring;
        painter.setPen(QPen(QColor(0, 0, 0, left * left / 8), 2 * ring, Qt::SolidLine, Qt::RoundCap,
                            Qt::RoundJoin));
        painter.drawPath(outline);
    }
}

} // namespace

Popover *Popover::show(ViewControllerPtr controller, const QRect &rect, QWidget &of)
{
    auto *popover = new Popover(std::move(controller), rect, of);
    popover->place();
    popover->QWidget::show();
    popover->raise();
    popover->focusNextPrevChild(true);
    return popover;
}

Popover::Popover(ViewControllerPtr controller, const QRect &rect, QWidget &of)
    : QWidget(of.window()),
      m_controller(std::move(controller)),
      m_of(&of),
      m_focusBefore(of.window()->focusWidget()),
      m_rect(rect)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(m_controller->view()->accessibleName());
    m_controller->view()->setParent(this);
    m_controller->view()->show();
    qApp->installEventFilter(this);
    connect(&of, &QObject::destroyed, this, &QWidget::close);
}

Popover::~Popover() = default;

// Place

QRect Popover::anchorInWindow() const
{
    const QPoint corner = m_of ? m_of->mapTo(parentWidget(), m_rect.topLeft()) : QPoint();
    return {corner, m_rect.size()};
}

QSize Popover::contentSize(const QSize &room) const
{
    QWidget *view = m_controller->view();
    const QSize hint = view->sizeHint();
    const int width = std::min(hint.width(), room.width());
    const int height = view->hasHeightForWidth() ? view->heightForWidth(width) : hint.height();
    return {width, std::min(height, room.height())};
}

void Popover::place()
{
    const QRect window = parentWidget()->rect();
    const QRect anchor = anchorInWindow() & window;
    const int vertical = surroundings.top() + surroundings.bottom() - shadowWidth;
    const int below = window.bottom() - anchor.bottom() - vertical;
    const int above = anchor.top() - window.top() - vertical;
    const int across = window.width() - surroundings.left() - surroundings.right();
    const QSize wanted = contentSize({across, QWIDGETSIZE_MAX});
    m_isBelow = wanted.height() <= below || below >= above;
    const QSize content = contentSize({across, std::max(m_isBelow ? below : above, 0)});
    QRect frame(QPoint(), content.grownBy(surroundings));
    frame.moveLeft(anchor.center().x() - frame.width() / 2);
    frame.moveLeft(std::clamp(frame.left(), window.left(),
                              std::max(window.left(), window.right() + 1 - frame.width())));
    // The tip touches the anchor; the shadow beyond it lies over it.
    if (m_isBelow)
        frame.moveTop(anchor.bottom() + 1 - shadowWidth);
    else
        frame.moveBottom(anchor.top() - 1 + shadowWidth);
    setGeometry(frame);
    const QRect inner = rect().marginsRemoved(surroundings);
    const int reach = cornerRadius + arrowHalfWidth;
    m_tip = {std::clamp(anchor.center().x() - frame.left(), inner.left() + reach,
                        std::max(inner.left() + reach, inner.right() - reach)),
             m_isBelow ? inner.top() - arrowHeight : inner.bottom() + 1 + arrowHeight};
    m_controller->view()->setGeometry(inner);
    update();
}

bool Popover::isInside(const QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        if (widget == this)
            return true;
    }
    return false;
}

// Events

bool Popover::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && m_controller->isViewLoaded())
        place();
    return QWidget::event(event);
}

/// Wherever in the window the focus is, and before the window's own use of the key.
bool Popover::takesEscape(const QObject *watched, const QEvent &event) const
{
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride)
        return false;
    return static_cast<const QKeyEvent &>(event).key() == Qt::Key_Escape &&
           watched->isWidgetType() && static_cast<const QWidget *>(watched)->window() == window();
}

bool Popover::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        place();
    } else if (watched == m_of && event->type() == QEvent::Hide) {
        close();
    } else if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        if (!isInside(static_cast<QWidget *>(watched)))
            close();
    } else if (takesEscape(watched, *event)) {
        if (event->type() == QEvent::KeyPress)
            close();
        event->accept();
        return true;
    }
    return false;
}

bool Popover::focusNextPrevChild(bool next)
{
    QWidget *from = QApplication::focusWidget();
    if (!from || !isInside(from))
        from = this;
    QWidget *to = from;
    do {
        to = next ? to->nextInFocusChain() : to->previousInFocusChain();
        const bool takesTab = (to->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (takesTab && to != this && isInside(to) && to->isEnabled() && to->isVisibleTo(this)) {
            to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (to != from);
    setFocus(Qt::TabFocusReason);
    return true;
}

void Popover::mousePressEvent(QMouseEvent *event)
{
    // What goes beside the frame goes to what is beneath, as far as the reader sees.
    if (!outline().contains(event->position()))
        close();
}

void Popover::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    qApp->removeEventFilter(this);
    if (m_focusBefore && (!QApplication::focusWidget() || isInside(QApplication::focusWidget())))
        m_focusBefore->setFocus(Qt::PopupFocusReason);
    Q_EMIT closed();
}

// Drawing

QPainterPath Popover::outline() const
{
    const QRectF inner = QRectF(rect().marginsRemoved(surroundings)).adjusted(-0.5, -0.5, 0.5, 0.5);
    QPainterPath frame;
    frame.addRoundedRect(inner, cornerRadius, cornerRadius);
    const double base = m_isBelow ? inner.top() + 1 : inner.bottom() - 1;
    QPainterPath arrow;
    arrow.moveTo(m_tip.x() - arrowHalfWidth, base);
    arrow.lineTo(m_tip);
    arrow.lineTo(m_tip.x() + arrowHalfWidth, base);
    arrow.closeSubpath();
    return frame.united(arrow);
}

void Popover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = outline();
    drawShadow(painter, path);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.3F);
    painter.setPen(QPen(line, 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawPath(path);
}

} // namespace Tavrin
