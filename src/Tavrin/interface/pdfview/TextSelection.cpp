// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/TextSelection.h>

#include <QTextBoundaryFinder>

#include <algorithm>
#include <limits>

namespace Tavrin
{

namespace
{

/// A line beside the point is nearer than one above it, as long as it isn't columns away.
constexpr double verticalWeight = 20;

double distance(const Rect &box, Point point)
{
    const double dx = std::max({box.minX() - point.x, 0.0, point.x - box.maxX()});
    const double dy = std::max({box.minY() - point.y, 0.0, point.y - box.maxY()});
    return dx + verticalWeight * dy;
}

/// The index of the line that holds an offset, or ends before it; -1 without lines.
qsizetype lineIndex(const PageText &text, qsizetype offset)
{
    const auto &lines = text.lines();
    const auto next = std::upper_bound(
        lines.begin(), lines.end(), offset,
        [](qsizetype o, const PageTextLine &line) { return o < line.range.location; });
    return std::max<qsizetype>(next - lines.begin() - 1, lines.empty() ? -1 : 0);
}

TextRange lineAt(const PageText &text, qsizetype offset)
{
    const qsizetype index = lineIndex(text, offset);
    return index < 0 ? TextRange{} : text.lines()[static_cast<std::size_t>(index)].range;
}

qsizetype boundary(const QString &string, qsizetype offset, TextUnit unit, bool forward)
{
    const auto type =
        unit == TextUnit::Word ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Grapheme;
    QTextBoundaryFinder finder(type, string);
    finder.setPosition(offset);
    qsizetype found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    // A word is stepped over with the blanks behind it.
    while (unit == TextUnit::Word && found > 0 && found < string.size() && string[found].isSpace())
        found = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    return found < 0 ? (forward ? string.size() : 0) : found;
}

/// How far right a position is; nothing where no character is beside it.
std::optional<double> caretX(const PageText &text, qsizetype offset)
{
    if (const Rect next = text.characterBounds(offset); !next.isNull())
        return next.minX();
    const Rect previous = text.characterBounds(offset - 1);
    return previous.isNull() ? std::nullopt : std::optional(previous.maxX());
}

/// Along the letters of a line in upright space; to the right where there is but one.
Point readingDirection(const PageText &text, const PageGeometry &geometry, TextRange line)
{
    const Rect first = text.characterBounds(line.location);
    const Rect last = text.characterBounds(line.end() - 1);
    if (line.length < 2 || first.isNull() || last.isNull())
        return {1, 0};
    const Point from = geometry.toUpright(first).center();
    const Point to = geometry.toUpright(last).center();
    return {to.x - from.x, to.y - from.y};
}

/// The offset in the line above or below that is nearest to the one here; nothing beyond the
/// page's lines.
std::optional<qsizetype> verticalStep(const PageText &text, qsizetype offset, int direction)
{
    const qsizetype target = lineIndex(text, offset) + direction;
    if (target < 0 || target >= static_cast<qsizetype>(text.lines().size()))
        return std::nullopt;
    const TextRange line = text.lines()[static_cast<std::size_t>(target)].range;
    const auto here = caretX(text, offset);
    if (!here)
        return direction > 0 ? line.location : line.end();
    qsizetype best = line.location;
    double bestDistance = std::numeric_limits<double>::infinity();
    if (const Rect last = text.characterBounds(line.end() - 1); *here >= last.maxX())
        return line.end();
    for (qsizetype index = line.location; index < line.end(); ++index) {
        const double off = std::abs(text.characterBounds(index).minX() - *here);
        if (off < bestDistance) {
            bestDistance = off;
            best = index;
        }
    }
    return best;
}

} // namespace

void TextSelection::step(TextStep step, TextUnit unit, int pageCount, const TextOf &textOf)
{
    const auto text = textOf(m_focus.page);
    if (!text)
        return;
    const qsizetype length = text->string().size();
    qsizetype &offset = m_focus.offset;
    offset = std::min(offset, length);
    const bool isForward = step == TextStep::Next || step == TextStep::Down;
    switch (step) {
    case TextStep::DocumentStart:
        m_focus = {0, 0};
        return;
    case TextStep::DocumentEnd:
        m_focus = {pageCount - 1, std::numeric_limits<qsizetype>::max()};
        return;
    case TextStep::LineStart:
        offset = lineAt(*text, offset).location;
        return;
    case TextStep::LineEnd:
        offset = lineAt(*text, offset).end();
        return;
    case TextStep::Up:
    case TextStep::Down:
        if (const auto found = verticalStep(*text, offset, isForward ? 1 : -1)) {
            offset = *found;
            return;
        }
        break;
    case TextStep::Previous:
    case TextStep::Next:
        if (isForward ? offset < length : offset > 0) {
            offset = boundary(text->string(), offset, unit, isForward);
            return;
        }
        break;
    }
    const int page = m_focus.page + (isForward ? 1 : -1);
    if (page >= 0 && page < pageCount)
        m_focus = {page, isForward ? 0 : std::numeric_limits<qsizetype>::max()};
}

TextRange TextSelection::rangeOn(int page, const TextOf &textOf) const
{
    const auto [first, last] = std::minmax(m_anchor, m_focus);
    const auto text = textOf(page);
    if (!text || page < first.page || page > last.page)
        return {};
    const qsizetype length = text->string().size();
    qsizetype from = page == first.page ? std::min(first.offset, length) : 0;
    qsizetype to = page == last.page ? std::min(last.offset, length) : length;
    if (m_unit != TextUnit::Character && length > 0) {
        if (page == first.page)
            from = unitAt(*text, from, m_unit).location;
        if (page == last.page)
            to = std::max(from, unitAt(*text, to, m_unit).end());
    }
    return {from, to - from};
}

qsizetype TextSelection::nearestOffset(const PageText &text, const PageGeometry &geometry,
                                       Point point, TextUnit unit)
{
    const Point upright = geometry.toUpright(point);
    const PageTextLine *nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const PageTextLine &line : text.lines()) {
        const double off = distance(geometry.toUpright(line.bounds), upright);
        if (off < least) {
            least = off;
            nearest = &line;
        }
    }
    if (!nearest)
        return 0;
    const Point along = readingDirection(text, geometry, nearest->range);
    qsizetype best = nearest->range.location;
    least = std::numeric_limits<double>::infinity();
    for (qsizetype index = best; index < nearest->range.end(); ++index) {
        const Rect cell = text.characterBounds(index);
        if (cell.isNull())
            continue;
        const Point center = geometry.toUpright(cell).center();
        const Point from{upright.x - center.x, upright.y - center.y};
        const double off = std::hypot(from.x, from.y);
        if (off < least) {
            least = off;
            const bool isBehind = from.x * along.x + from.y * along.y > 0;
            best = index + (unit == TextUnit::Character && isBehind ? 1 : 0);
        }
    }
    return best;
}

TextRange TextSelection::unitAt(const PageText &text, qsizetype offset, TextUnit unit)
{
    const QString &string = text.string();
    if (string.isEmpty())
        return {};
    offset = std::clamp<qsizetype>(offset, 0, string.size() - 1);
    if (unit == TextUnit::Line)
        return lineAt(text, offset);
    const auto type =
        unit == TextUnit::Word ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Grapheme;
    QTextBoundaryFinder finder(type, string);
    finder.setPosition(offset);
    const qsizetype from =
        finder.isAtBoundary() ? offset : std::max<qsizetype>(0, finder.toPreviousBoundary());
    finder.setPosition(offset);
    const qsizetype to = finder.toNextBoundary();
    return {from, (to < 0 ? string.size() : to) - from};
}

std::vector<Rect> TextSelection::boxes(const PageText &text, TextRange range)
{
    std::vector<Rect> result;
    qsizetype index = range.location;
    const qsizetype end = std::min(range.end(), text.string().size());
    while (index < end) {
        const qsizetype lineEnd = std::max(lineAt(text, index).end(), index + 1);
        Rect box = Rect::null();
        for (; index < std::min(lineEnd, end); ++index)
            box = box.united(text.characterBounds(index));
        if (!box.isNull())
            result.push_back(box);
    }
    return result;
}

} // namespace Tavrin
