// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/ProgressSheet.h>

#include <QProgressBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tavrin
{

namespace
{

constexpr int steps = 1'000;
constexpr int barWidth = 300;
constexpr int barHeight = 20;

} // namespace

ProgressSheet::ProgressSheet(QWidget &window, const QString &message, Kind kind)
    : Sheet(window), m_bar(new QProgressBar)
{
    setMessageText(message);
    setEndsOnEscape(false);
    m_bar->setRange(0, kind == Kind::Determinate ? steps : 0);
    m_bar->setValue(0);
    m_bar->setTextVisible(false);
    m_bar->setMinimumSize(barWidth, barHeight);
    m_bar->setMaximumHeight(barHeight);
    m_bar->setAccessibleName(message);
    setAccessoryView(std::unique_ptr<QWidget>(m_bar));
}

ProgressSheet *ProgressSheet::begin(QWidget &window, const QString &message, Kind kind)
{
    auto *sheet = new ProgressSheet(window, message, kind);
    sheet->Sheet::begin();
    return sheet;
}

void ProgressSheet::setValue(double value)
{
    m_bar->setValue(static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * steps)));
}

double ProgressSheet::value() const
{
    return static_cast<double>(m_bar->value()) / steps;
}

void ProgressSheet::paintEvent(QPaintEvent *event)
{
    Sheet::paintEvent(event);
    // The bar is yet to be drawn, and all of it to be handed to the display.
    if (!std::exchange(m_wasPainted, true))
        QMetaObject::invokeMethod(this, &ProgressSheet::painted, Qt::QueuedConnection);
}

} // namespace Tavrin
