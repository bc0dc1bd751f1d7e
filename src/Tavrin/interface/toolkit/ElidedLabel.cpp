// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/ElidedLabel.h>

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

namespace Tavrin
{

namespace
{

/// Of the text's own colour, over whatever lies behind.
constexpr float markOpacity = 0.18F;

} // namespace

void ElidedLabel::setMarkedWords(const QStringList &words)
{
    m_markedWords = words;
    update();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 3, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    const QRect area = contentsRect();
    // A paragraph may be given, of which a few words fit; no letter is narrower than two pixels.
    const QString shown =
        fontMetrics().elidedText(text().left(area.width() / 2 + 1), Qt::ElideRight, area.width());
    QTextCharFormat mark;
    QColor color = palette().color(foregroundRole());
    color.setAlphaF(markOpacity);
    mark.setBackground(color);
    QList<QTextLayout::FormatRange> marks;
    for (const QString &word : m_markedWords) {
        for (qsizetype at = shown.indexOf(word, 0, Qt::CaseInsensitive); at >= 0 && !word.isEmpty();
             at = shown.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            marks.append({static_cast<int>(at), static_cast<int>(word.size()), mark});
    }
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::AlignAbsolute);
    // Whatever the direction of the view, an English title ends in its period.
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::NoWrap);
    QTextLayout layout(shown, font(), this);
    layout.setTextOption(option);
    layout.setFormats(marks);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(area.width());
    layout.endLayout();
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, area.topLeft() + QPointF(0, (area.height() - line.height()) / 2));
}

} // namespace Tavrin
