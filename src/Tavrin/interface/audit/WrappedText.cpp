// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/WrappedText.h>

#include <QFontMetricsF>
#include <QTextOption>

namespace Tavrin
{

WrappedText::WrappedText(const QString &text, const QFont &font, double width, int lines)
    : m_width(width)
{
    QTextOption option(text.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_layout.setFont(font);
    m_layout.setTextOption(option);
    QString shown = text;
    shown.replace(u'\n', QChar::LineSeparator);
    const qsizetype last = layOut(shown, lines);
    m_isCut = m_hasMore;
    if (!m_isCut)
        return;
    // What follows the last line's own end is made part of it, and elided.
    const QString rest = shown.mid(last).section(QChar::LineSeparator, 0, 0);
    const QString end = QFontMetricsF(font).elidedText(rest + QChar(0x2026), Qt::ElideRight, width);
    layOut(shown.left(last) + end, lines);
}

qsizetype WrappedText::layOut(const QString &text, int lines)
{
    qsizetype last = 0;
    double y = 0;
    m_layout.setText(text);
    m_layout.beginLayout();
    for (int count = 0; count < lines; ++count) {
        QTextLine line = m_layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(m_width);
        line.setPosition({0, y});
        y += line.height();
        last = line.textStart();
    }
    m_hasMore = m_layout.createLine().isValid();
    m_layout.endLayout();
    return last;
}

void WrappedText::draw(QPainter &painter, QPointF topLeft) const
{
    m_layout.draw(&painter, topLeft);
}

} // namespace Tavrin
