// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenPainter.h>

#include <QPainter>
#include <QPainterPath>

namespace Tavrin
{

namespace
{

constexpr qreal cornerRadius = 5;
constexpr double chipTint = 0.16;
constexpr double chipLine = 0.45;
constexpr double disabledTint = 0.06;
constexpr double disabledLine = 0.2;
constexpr double arrowTint = 0.3;
/// Half of what the arrow takes, in pixels.
constexpr qreal arrowReach = 3.5;

} // namespace

TokenPainter::TokenPainter(const TokenLayout &layout, const TokenContent &content, const Look &look)
    : m_layout(layout), m_content(content), m_look(look)
{
}

QColor TokenPainter::mixed(QPalette::ColorRole role, double share) const
{
    const QColor over = m_look.palette.color(role);
    const QColor base = m_look.palette.color(QPalette::Base);
    const auto mix = [share](float a, float b) {
        return static_cast<float>(a * share + b * (1 - share));
    };
    return QColor::fromRgbF(mix(over.redF(), base.redF()), mix(over.greenF(), base.greenF()),
                            mix(over.blueF(), base.blueF()));
}

void TokenPainter::draw(QPainter &painter, const QRectF &clip) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_layout.font());
    // Each chip and each run goes the way of its own text.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QTextLayout *last = nullptr;
    for (const auto &piece : m_layout.piecesBetween(clip.top(), clip.bottom())) {
        if (piece.isToken())
            drawChip(painter, piece);
        else if (piece.text != last)
            drawText(painter, *piece.text, clip);
        last = piece.text;
    }
}

void TokenPainter::drawChip(QPainter &painter, const TokenLayout::Piece &chip) const
{
    const Token &token = m_content.tokenAt(chip.range.location);
    const bool isSelected = m_look.selection && m_look.selection->contains(chip.range.location);
    const bool isDisabled = m_look.palette.currentColorGroup() == QPalette::Disabled;
    const auto tone = isDisabled ? QPalette::Text : QPalette::Highlight;
    const QColor highlight = m_look.palette.color(QPalette::Highlight);
    const QColor text =
        m_look.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QRectF frame = m_layout.chipRect(chip).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(isSelected ? highlight : mixed(tone, isDisabled ? disabledLine : chipLine));
    painter.setBrush(isSelected ? highlight : mixed(tone, isDisabled ? disabledTint : chipTint));
    painter.drawRoundedRect(frame, cornerRadius, cornerRadius);
    const QRectF menu = m_layout.menuRect(chip, token);
    if (!menu.isNull() && m_look.hoveredMenu == chip.range.location && !isSelected) {
        QPainterPath whole;
        whole.addRoundedRect(frame, cornerRadius, cornerRadius);
        painter.save();
        painter.setClipRect(menu, Qt::IntersectClip);
        painter.fillPath(whole, mixed(tone, arrowTint));
        painter.restore();
    }
    const QRectF room = m_layout.textRect(chip, token);
    // The end tells the revision, so the middle goes.
    const QString shown =
        QFontMetricsF(m_layout.font())
            .elidedText(TokenLayout::chipText(token), Qt::ElideMiddle, room.width() + 1);
    painter.setPen(text);
    painter.drawText(room.adjusted(-1, 0, 1, 0), Qt::AlignCenter | Qt::TextSingleLine, shown);
    if (!menu.isNull())
        drawArrow(painter, menu, text);
}

void TokenPainter::drawArrow(QPainter &painter, const QRectF &rect, const QColor &color) const
{
    const QPointF tip(rect.center().x(), rect.center().y() + arrowReach / 2);
    QPen pen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{tip - QPointF(arrowReach, arrowReach), tip,
                                   tip + QPointF(arrowReach, -arrowReach)});
}

void TokenPainter::drawText(QPainter &painter, const QTextLayout &text, const QRectF &clip) const
{
    QList<QTextLayout::FormatRange> selections;
    const TextRange selected =
        m_look.selection ? m_layout.rangeInText(&text, *m_look.selection) : TextRange();
    if (selected.length > 0) {
        QTextCharFormat format;
        format.setBackground(m_look.palette.brush(QPalette::Highlight));
        format.setForeground(m_look.palette.brush(QPalette::HighlightedText));
        selections +=
            {static_cast<int>(selected.location), static_cast<int>(selected.length), format};
    }
    painter.setPen(m_look.palette.color(QPalette::Text));
    text.draw(&painter, {}, selections, clip);
}

} // namespace Tavrin
