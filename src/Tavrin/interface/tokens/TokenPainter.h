// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPalette>

#include <optional>

#include <Tavrin/interface/tokens/TokenLayout.h>

class QPainter;

namespace Tavrin
{

/// Draws a TokenLayout: chips in a tint of the selection's colour, selected ones in that colour.
class TokenPainter
{
public:
    struct Look {
        /// Of the colour group in which to draw.
        QPalette palette;
        /// Absent where the selection isn't shown.
        std::optional<TextRange> selection;
        /// The place of the token whose arrow is under the mouse.
        std::optional<qsizetype> hoveredMenu;
    };

    TokenPainter(const TokenLayout &layout, const TokenContent &content, const Look &look);

    /// What meets the clip, in the layout's coordinates.
    void draw(QPainter &painter, const QRectF &clip) const;

private:
    void drawChip(QPainter &painter, const TokenLayout::Piece &chip) const;
    void drawArrow(QPainter &painter, const QRectF &rect, const QColor &color) const;
    void drawText(QPainter &painter, const QTextLayout &text, const QRectF &clip) const;
    QColor mixed(QPalette::ColorRole role, double share) const;

    const TokenLayout &m_layout;
    const TokenContent &m_content;
    Look m_look;
};

} // namespace Tavrin
