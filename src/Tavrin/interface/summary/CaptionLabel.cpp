// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/CaptionLabel.h>

#include <QPainter>
#include <QStyle>

namespace Tavrin
{

namespace
{

/// Dark enough to be read with ease (WCAG 2.1, 1.4.3), on either palette.
constexpr double captionOpacity = 0.68;

} // namespace

void CaptionLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(captionOpacity);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(
        contentsRect(),
        int(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextWordWrap, text());
}

} // namespace Tavrin
