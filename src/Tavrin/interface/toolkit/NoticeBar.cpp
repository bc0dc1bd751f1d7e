// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/NoticeBar.h>

#include <Tavrin/interface/toolkit/DrawnIcon.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace Tavrin
{

namespace
{

/// Mixed into the window's colour, so that it stands out in light and dark alike.
const QColor tint(230, 160, 20);
constexpr float tintShare = 0.22F;

} // namespace

NoticeBar::NoticeBar(QWidget *parent) : QFrame(parent), m_label(new QLabel(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 5, 5, 5);
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(m_label, 1);
    auto *close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setIcon(drawnIcon(IconShape::Close));
    close->setToolTip(localized("Close", "Button of a notice"));
    close->setAccessibleName(close->toolTip());
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, &NoticeBar::clear);
    row->addWidget(close, 0, Qt::AlignTop);
    setAccessibleName(localized("Notice", "Accessible name of the line above a document"));
    hide();
}

void NoticeBar::showText(const QString &text)
{
    m_label->setText(text);
    setAccessibleDescription(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::clear()
{
    m_label->clear();
    hide();
}

QString NoticeBar::text() const
{
    return m_label->text();
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor color = tint;
    color.setAlphaF(tintShare);
    painter.fillRect(rect(), color);
    painter.fillRect(QRect(0, height() - 1, width(), 1), palette().color(QPalette::Mid));
}

} // namespace Tavrin
