// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenLayout.h>

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// Between pieces of a row; the caret between two chips stands in it.
constexpr qreal gap = 5;
/// Before the first piece and after the last.
constexpr qreal caretRoom = 2;
constexpr qreal rowSpacing = 4;
/// Beside a chip's text, and above and below.
constexpr qreal chipPadding = 7;
constexpr qreal chipVerticalPadding = 1;
constexpr qreal menuWidth = 18;
/// Of a longer text no more is measured, nor would fit.
constexpr qsizetype measuredLength = 500;
constexpr qsizetype rememberedWidths = 50'000;

/// Whether text can be parted there without parting a word.
bool isLineBreak(const QString &text, qsizetype position)
{
    if (position >= text.size())
        return true;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    finder.setPosition(position);
    return finder.isAtBoundary();
}

} // namespace

TokenLayout::TokenLayout() : m_metrics(m_font) {}

TokenLayout::~TokenLayout() = default;

void TokenLayout::setFont(const QFont &font)
{
    m_font = font;
    m_metrics = QFontMetricsF(font);
    m_textWidths.clear();
}

qreal TokenLayout::rowHeight() const
{
    return std::ceil(m_metrics.height() + 2 * chipVerticalPadding + rowSpacing);
}

// Setting

void TokenLayout::layOut(const TokenContent &content, const Preedit &preedit, qreal width)
{
    m_width = std::max(width, 4 * gap);
    m_preedit = preedit;
    m_pieces.clear();
    m_runs.clear();
    m_pieces.reserve(static_cast<std::size_t>(content.tokens().size()) + 1);
    Pen pen{0, caretRoom};
    for (qsizetype at = 0, token = 0; at <= content.size(); ++token) {
        const TextRange run = content.run(at);
        if (run.length > 0 || preeditIn(run))
            addRun(content, run, pen);
        if (run.end() < content.size())
            addChip(content.tokens()[token], run.end(), pen);
        at = run.end() + 1;
    }
    m_rowCount = pen.row + 1;
}

QRectF TokenLayout::placed(qreal x, qreal width, int row) const
{
    return {isRightToLeft() ? m_width - x - width : x, rowTop(row), width, rowHeight()};
}

qreal TokenLayout::chipWidth(const Token &token)
{
    const QString text = chipText(token);
    auto known = m_textWidths.constFind(text);
    if (known == m_textWidths.constEnd()) {
        if (m_textWidths.size() >= rememberedWidths)
            m_textWidths.clear();
        known = m_textWidths.insert(text, std::ceil(m_metrics.horizontalAdvance(text)));
    }
    return *known + 2 * chipPadding + (token.hasMenu ? menuWidth - chipPadding / 2 : 0);
}

void TokenLayout::addChip(const Token &token, qsizetype position, Pen &pen)
{
    const qreal widest = m_width - 2 * caretRoom;
    const qreal width = std::min(chipWidth(token), widest);
    if (pen.x > caretRoom && pen.x + width > m_width - caretRoom)
        pen = {pen.row + 1, caretRoom};
    m_pieces.push_back({{position, 1}, pen.row, placed(pen.x, width, pen.row)});
    pen.x += width + gap;
}

std::unique_ptr<QTextLayout> TokenLayout::textLayout(const QString &text,
                                                     const TextRange &run) const
{
    auto layout = std::make_unique<QTextLayout>(text, m_font);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout->setTextOption(option);
    if (const auto composing = preeditIn(run)) {
        auto formats = m_preedit.formats;
        for (auto &format : formats)
            format.start += static_cast<int>(*composing);
        layout->setFormats(formats);
    }
    return layout;
}

void TokenLayout::addRun(const TokenContent &content, const TextRange &range, Pen &pen)
{
    QString text = content.textOf(range);
    if (const auto composing = preeditIn(range))
        text.insert(*composing, m_preedit.text);
    m_runs.push_back({range, textLayout(text, range)});
    const Run &run = m_runs.back();
    run.layout->beginLayout();
    for (QTextLine line = run.layout->createLine(); line.isValid(); line = run.layout->createLine())
        addLine(run, line, pen);
    run.layout->endLayout();
    pen.x += gap;
}

void TokenLayout::addLine(const Run &run, QTextLine line, Pen &pen)
{
    const QString &text = run.layout->text();
    const qreal end = m_width - caretRoom;
    if (line.lineNumber() > 0)
        pen = {pen.row + 1, caretRoom};
    line.setLineWidth(std::max(end - pen.x, 1.0));
    const int lineEnd = line.textStart() + line.textLength();
    // A word that the rest of the row can't hold goes to the next one.
    if (pen.x > caretRoom &&
        (line.naturalTextWidth() > end - pen.x || !isLineBreak(text, lineEnd))) {
        pen = {pen.row + 1, caretRoom};
        line.setLineWidth(end - pen.x);
    }
    // Blanks at its end may stand beyond.
    const qreal width = std::min(line.naturalTextWidth(), end - pen.x);
    const QRectF rect = placed(pen.x, width, pen.row);
    const qreal baseline = rect.top() + (rowHeight() - m_metrics.height()) / 2 + m_metrics.ascent();
    line.setPosition({rect.left(), baseline - line.ascent()});
    const qsizetype first = fromText(run.range, line.textStart());
    const qsizetype last = fromText(run.range, line.textStart() + line.textLength());
    m_pieces.push_back({{first, last - first}, pen.row, rect, run.layout.get(), line.lineNumber()});
    pen.x += width;
}

// Places

std::span<const TokenLayout::Piece> TokenLayout::piecesBetween(qreal top, qreal bottom) const
{
    const auto row = [this](qreal y) { return static_cast<int>(std::floor(y / rowHeight())); };
    const auto begin = std::lower_bound(m_pieces.begin(), m_pieces.end(), row(top),
                                        [](const Piece &piece, int r) { return piece.row < r; });
    const auto end = std::upper_bound(begin, m_pieces.end(), row(bottom),
                                      [](int r, const Piece &piece) { return r < piece.row; });
    return {begin, end};
}

QRectF TokenLayout::chipRect(const Piece &chip) const
{
    return chip.rect.adjusted(0, rowSpacing / 2, 0, -rowSpacing / 2);
}

QString TokenLayout::chipText(const Token &token)
{
    const QString &text = token.displayString;
    if (text.size() <= measuredLength)
        return text;
    const bool isParted = text[measuredLength].isLowSurrogate();
    return text.first(measuredLength - (isParted ? 1 : 0)) + QChar(0x2026);
}

QRectF TokenLayout::textRect(const Piece &chip, const Token &token) const
{
    const qreal leading = chipPadding;
    const qreal trailing = token.hasMenu ? menuWidth + chipPadding / 2 : chipPadding;
    return chipRect(chip).adjusted(isRightToLeft() ? trailing : leading, 0,
                                   isRightToLeft() ? -leading : -trailing, 0);
}

QRectF TokenLayout::menuRect(const Piece &chip, const Token &token) const
{
    if (!token.hasMenu)
        return {};
    QRectF rect = chipRect(chip);
    const qreal width = std::min(menuWidth, rect.width());
    if (!isRightToLeft())
        rect.moveLeft(rect.right() - width);
    rect.setWidth(width);
    return rect;
}

const TokenLayout::Piece *TokenLayout::pieceAt(qsizetype position) const
{
    const auto after =
        std::upper_bound(m_pieces.begin(), m_pieces.end(), position,
                         [](qsizetype p, const Piece &piece) { return p < piece.range.location; });
    if (after == m_pieces.begin())
        return nullptr;
    const Piece &piece = *std::prev(after);
    return piece.range.contains(position) ? &piece : nullptr;
}

std::optional<qsizetype> TokenLayout::tokenAt(const QPointF &point) const
{
    for (const Piece &piece : piecesBetween(point.y(), point.y())) {
        if (piece.isToken() && piece.rect.contains(point))
            return piece.range.location;
    }
    return {};
}

std::optional<qsizetype> TokenLayout::preeditIn(const TextRange &run) const
{
    const qsizetype inRun = m_preedit.position - run.location;
    const bool isHere = !m_preedit.text.isEmpty() && inRun >= 0 && inRun <= run.length;
    return isHere ? std::optional(inRun) : std::nullopt;
}

qsizetype TokenLayout::toText(const TextRange &run, qsizetype position) const
{
    const qsizetype inRun = position - run.location;
    const auto composing = preeditIn(run);
    return composing && inRun > *composing ? inRun + m_preedit.text.size() : inRun;
}

qsizetype TokenLayout::fromText(const TextRange &run, qsizetype inText) const
{
    const auto composing = preeditIn(run);
    if (composing && inText > *composing)
        inText = std::max(inText - m_preedit.text.size(), *composing);
    return run.location + inText;
}

const TokenLayout::Run *TokenLayout::runWith(qsizetype position) const
{
    for (const Run &run : m_runs) {
        if (position >= run.range.location && position <= run.range.end())
            return &run;
    }
    return nullptr;
}

const TokenLayout::Run &TokenLayout::runOf(const QTextLayout *text) const
{
    return *std::find_if(m_runs.begin(), m_runs.end(),
                         [text](const Run &run) { return run.layout.get() == text; });
}

TextRange TokenLayout::rangeInText(const QTextLayout *text, const TextRange &range) const
{
    const TextRange &run = runOf(text).range;
    const qsizetype first = std::max(range.location, run.location);
    const qsizetype last = std::min(range.end(), run.end());
    if (first >= last)
        return {};
    const qsizetype begin = toText(run, first);
    return {begin, toText(run, last) - begin};
}

QRectF TokenLayout::caretInText(const Run &run, qsizetype inText) const
{
    const auto position = static_cast<int>(inText);
    const QTextLine line = run.layout->lineForTextPosition(position);
    const qreal edge = caretRoom / 2;
    const qreal x = std::clamp(line.cursorToX(position), edge, m_width - edge);
    const auto piece = std::find_if(m_pieces.begin(), m_pieces.end(), [&](const Piece &candidate) {
        return candidate.text == run.layout.get() && candidate.line == line.lineNumber();
    });
    return {std::floor(x), piece->rect.top() + rowSpacing / 2, 1, rowHeight() - rowSpacing};
}

QRectF TokenLayout::caretRect(qsizetype position, qsizetype intoPreedit) const
{
    if (const Run *run = runWith(position)) {
        const bool isComposing = preeditIn(run->range) && position == m_preedit.position;
        return caretInText(*run, toText(run->range, position) + (isComposing ? intoPreedit : 0));
    }
    QRectF caret = placed(caretRoom / 2, 1, 0);
    if (const Piece *before = pieceAt(position - 1)) {
        const qreal middle = std::floor(gap / 2);
        caret = before->rect;
        caret.moveLeft(isRightToLeft() ? before->rect.left() - middle - 1
                                       : before->rect.right() + middle);
        // In a row that is full there is room behind the chip for the caret alone.
        caret.moveLeft(std::clamp(caret.left(), 0.0, m_width - 1));
    }
    return {caret.left(), caret.top() + rowSpacing / 2, 1, rowHeight() - rowSpacing};
}

qsizetype TokenLayout::positionAt(const QPointF &point) const
{
    if (m_pieces.empty() || point.y() < 0)
        return 0;
    const qreal y = std::min(point.y(), height() - 1);
    const auto distance = [&point](const Piece &piece) {
        return std::max({piece.rect.left() - point.x(), point.x() - piece.rect.right(), 0.0});
    };
    const auto row = piecesBetween(y, y);
    const auto nearest =
        std::min_element(row.begin(), row.end(),
                         [&](const Piece &a, const Piece &b) { return distance(a) < distance(b); });
    if (nearest->isToken()) {
        const bool isBehind = (point.x() > nearest->rect.center().x()) != isRightToLeft();
        return isBehind ? nearest->range.end() : nearest->range.location;
    }
    const QTextLine line = nearest->text->lineAt(nearest->line);
    return fromText(runOf(nearest->text).range, line.xToCursor(point.x()));
}

} // namespace Tavrin
