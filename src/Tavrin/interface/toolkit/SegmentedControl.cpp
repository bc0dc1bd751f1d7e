// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/SegmentedControl.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>

namespace Tavrin
{

namespace
{

/// Wide enough to be hit, whatever sign is on it.
constexpr QSize smallestSegment(32, 26);

} // namespace

SegmentedControl::SegmentedControl(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Without one it has no place in the order of the Tab key. A segment stands in for it.
    setFocusPolicy(Qt::StrongFocus);
}

void SegmentedControl::addSegment(const QString &label, const QString &name)
{
    auto *button = new QToolButton(this);
    button->setText(label);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setMinimumSize(smallestSegment);
    button->installEventFilter(this);
    const int index = segmentCount();
    connect(button, &QToolButton::clicked, this, [this, index] { press(index); });
    layout()->addWidget(button);
    // They may come later than what follows the control.
    QWidget *before = this;
    if (!m_segments.empty())
        before = m_segments.back();
    setTabOrder(before, button);
    m_segments.push_back(button);
    updateTabStop(m_tabStop);
}

QToolButton *SegmentedControl::segment(int index) const
{
    return index >= 0 && index < segmentCount() ? m_segments[std::size_t(index)] : nullptr;
}

void SegmentedControl::setSegmentEnabled(int index, bool enabled)
{
    QToolButton *button = segment(index);
    if (!button)
        return;
    const bool hadFocus = button->hasFocus();
    if (hadFocus && !enabled)
        moveFocus(index, index == 0 ? 1 : -1);
    button->setEnabled(enabled);
    updateTabStop(m_tabStop);
}

void SegmentedControl::press(int index)
{
    m_selectedSegment = index;
    updateTabStop(index);
    Q_EMIT pressed(index);
}

bool SegmentedControl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto it = std::find(m_segments.begin(), m_segments.end(), watched);
    const int index = static_cast<int>(it - m_segments.begin());
    const int forwards = isRightToLeft() ? -1 : 1;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
        moveFocus(index, -forwards);
        return true;
    case Qt::Key_Right:
        moveFocus(index, forwards);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        (*it)->animateClick();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void SegmentedControl::moveFocus(int from, int step)
{
    for (int index = from + step; segment(index); index += step) {
        if (!segment(index)->isEnabled())
            continue;
        segment(index)->setFocus(Qt::OtherFocusReason);
        updateTabStop(index);
        return;
    }
}

void SegmentedControl::updateTabStop(int preferred)
{
    const auto isEnabled = [](const QToolButton *button) { return button->isEnabled(); };
    m_tabStop = preferred;
    if (segment(preferred) && !isEnabled(segment(preferred))) {
        const auto it = std::find_if(m_segments.begin(), m_segments.end(), isEnabled);
        m_tabStop = it == m_segments.end() ? 0 : static_cast<int>(it - m_segments.begin());
    }
    for (int index = 0; index < segmentCount(); ++index)
        segment(index)->setFocusPolicy(index == m_tabStop ? Qt::StrongFocus : Qt::ClickFocus);
    setFocusProxy(segment(m_tabStop));
}

} // namespace Tavrin
