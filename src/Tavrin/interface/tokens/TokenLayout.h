// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <Tavrin/interface/tokens/TokenContent.h>

namespace Tavrin
{

/// Where the parts of a TokenContent stand when it is set in rows of one height: tokens as chips,
/// the text between them as text, which may go over several rows.
///
/// Rows begin on the side where reading begins. Coordinates are pixels from the upper left of the
/// first row. Needs no widget; what a chip measures is remembered from one layout to the next.
class TokenLayout
{
public:
    /// A text that an input method is composing, which is no part of the content yet.
    struct Preedit {
        QString text;
        /// Where in the content it stands.
        qsizetype position = 0;
        QList<QTextLayout::FormatRange> formats;
    };

    /// A token, or a line of a run.
    struct Piece {
        TextRange range;
        int row = 0;
        QRectF rect;
        /// Null for a token.
        const QTextLayout *text = nullptr;
        int line = 0;

        bool isToken() const { return !text; }
    };

    TokenLayout();
    ~TokenLayout();

    void setFont(const QFont &font);
    void setDirection(Qt::LayoutDirection direction) { m_direction = direction; }
    void layOut(const TokenContent &content, const Preedit &preedit, qreal width);

    int rowCount() const { return m_rowCount; }
    qreal rowHeight() const;
    qreal height() const { return m_rowCount * rowHeight(); }
    const QFont &font() const { return m_font; }
    bool isRightToLeft() const { return m_direction == Qt::RightToLeft; }

    /// The pieces of the rows that a stretch from top to bottom meets.
    std::span<const Piece> piecesBetween(qreal top, qreal bottom) const;

    // Inside a chip.
    /// The chip without what parts the rows.
    QRectF chipRect(const Piece &chip) const;
    /// What it shows, as far as that can fit anywhere.
    static QString chipText(const Token &token);
    QRectF textRect(const Piece &chip, const Token &token) const;
    /// Where the arrow to its menu stands; null if it has none.
    QRectF menuRect(const Piece &chip, const Token &token) const;

    /// The part of a run's text, with the preedit in it, that a range of the content is.
    TextRange rangeInText(const QTextLayout *text, const TextRange &range) const;
    /// One pixel wide, at a position of the content, or so far into the preedit.
    QRectF caretRect(qsizetype position, qsizetype intoPreedit = 0) const;
    /// The nearest one to a point.
    qsizetype positionAt(const QPointF &point) const;
    /// The place of the token whose chip is at the point.
    std::optional<qsizetype> tokenAt(const QPointF &point) const;
    /// The chip at that place of the content, or the line of a run; null beyond the end.
    const Piece *pieceAt(qsizetype position) const;

private:
    struct Run {
        TextRange range;
        std::unique_ptr<QTextLayout> layout;
    };
    /// Where the next piece goes.
    struct Pen {
        int row = 0;
        qreal x = 0;
    };

    void addChip(const Token &token, qsizetype position, Pen &pen);
    void addRun(const TokenContent &content, const TextRange &range, Pen &pen);
    void addLine(const Run &run, QTextLine line, Pen &pen);
    std::unique_ptr<QTextLayout> textLayout(const QString &text, const TextRange &run) const;
    qreal chipWidth(const Token &token);
    qreal rowTop(int row) const { return row * rowHeight(); }
    QRectF placed(qreal x, qreal width, int row) const;
    /// Where the preedit stands in a run; absent if it is elsewhere.
    std::optional<qsizetype> preeditIn(const TextRange &run) const;
    qsizetype toText(const TextRange &run, qsizetype position) const;
    qsizetype fromText(const TextRange &run, qsizetype inText) const;
    const Run *runWith(qsizetype position) const;
    const Run &runOf(const QTextLayout *text) const;
    QRectF caretInText(const Run &run, qsizetype inText) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    qreal m_width = 0;
    Preedit m_preedit;
    int m_rowCount = 1;
    std::vector<Piece> m_pieces;
    std::vector<Run> m_runs;
    /// By the text, without what stands beside it.
    QHash<QString, qreal> m_textWidths;
};

} // namespace Tavrin
