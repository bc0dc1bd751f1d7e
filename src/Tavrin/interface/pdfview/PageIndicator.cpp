// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PageIndicator.h>

#include <Tavrin/platform/StringLocalizer.h>

#include <QPainter>

namespace Tavrin
{

namespace
{

constexpr int restTime = 1200;
constexpr int fadeTime = 250;
constexpr int distanceFromEdge = 14;

} // namespace

PageIndicator::PageIndicator(QWidget *parent) : QLabel(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setContentsMargins(12, 4, 12, 4);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    m_fade.setDuration(fadeTime);
    m_fade.setStartValue(1.0);
    m_fade.setEndValue(0.0);
    connect(&m_rest, &QTimer::timeout, this, [this] { m_fade.start(); });
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_fade, &QVariantAnimation::finished, this, &QWidget::hide);
    hide();
}

void PageIndicator::showPage(const QString &label, int page, int pageCount)
{
    const QString number = QString::number(page + 1);
    const QString count = QString::number(pageCount);
    setText(label.isEmpty() || label == number
                ? localized("%1 of %2", "Page number and number of pages").arg(number, count)
                : localized("%1 (%2 of %3)", "Printed page number, page and number of pages")
                      .arg(label, number, count));
    m_fade.stop();
    m_rest.start();
    adjustSize();
    const QSize area = parentWidget()->size();
    move((area.width() - width()) / 2, area.height() - height() - distanceFromEdge);
    show();
    raise();
    update();
}

void PageIndicator::paintEvent(QPaintEvent *)
{
    // Dark in either palette: it lies on paper as often as on the frame.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isFading = m_fade.state() == QAbstractAnimation::Running;
    painter.setOpacity(isFading ? m_fade.currentValue().toDouble() : 1.0);
    painter.setPen(QColor(255, 255, 255, 70));
    painter.setBrush(QColor(32, 34, 37, 225));
    const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(QColor(245, 245, 245));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace Tavrin
