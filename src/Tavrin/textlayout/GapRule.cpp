// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/GapRule.h>

#include <Tavrin/textlayout/LineLabel.h>

#include <QChar>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// Gaps in sizes. No gutter is narrower than the first; no gap within a line is wider than the
/// second, unless it stands behind a label, in dot leaders or between fixed-width characters.
constexpr float narrowestColumnGap = 0.9f;
constexpr float widestTextGap = 2.5f;
constexpr float widestLabelGap = 5;
constexpr float widestLeaderGap = 4;
constexpr float widestMonospacedGap = 7;
/// Line numbers in the margin are set small and near.
constexpr float narrowestLineNumberGap = 0.45f;
constexpr float lineNumberSize = 0.85f;
/// Longer beginnings are no labels.
constexpr size_t longestLabel = 22;
/// A title may start with figures ("4:2:0 Subsampling"), but not go on with them for long.
constexpr quint32 furthestWord = 16;
constexpr std::ptrdiff_t lettersOfWord = 4;

/// Whether a title can start like this behind a number. A cell of a table behind another
/// starts with a figure, most often.
bool startsTitle(LineLabel label, char32_t c)
{
    if (label == LineLabel::None || QChar::isDigit(c) || c == U'-' || c == U'+' || c == U'\u2212')
        return false;
    return label == LineLabel::Label || QChar::isLetter(c) || c > 0x2000 ||
           (c < 0x80 && QStringView(u"\"'`(<[{_\\/#&").contains(QChar(c)));
}

} // namespace

GapRule::GapRule(const std::vector<LayoutGlyph> &glyphs, const SegmentRows &rows)
    : m_glyphs(glyphs), m_gutters(rows)
{
    m_beginning.reserve(longestLabel + 1);
}

void GapRule::begin(const Segment &first)
{
    m_beginning.clear();
    m_lineStart = first.start;
    m_isFirstOfRow = true;
    remember(first);
}

bool GapRule::joins(const Segment &before, const Segment &next, float gapStart, float gapEnd)
{
    const float size = std::max(before.size, next.size);
    const Gap gap{gapStart, gapEnd, size, (gapEnd - gapStart) / size};
    const bool joined = decide(gap, before, next);
    if (!joined) {
        m_beginning.clear();
        m_isFirstOfRow = false;
    }
    remember(next);
    return joined;
}

bool GapRule::decide(const Gap &gap, const Segment &before, const Segment &next) const
{
    if (gap.width < narrowestLineNumberGap)
        return true;
    if (isLineNumber(gap, before, next))
        return false;
    if (gap.width < narrowestColumnGap)
        return true;
    if (isLabelled(gap, before, next) || (gap.width <= widestLeaderGap && isLeader(before, next)) ||
        (gap.width <= widestMonospacedGap && isMonospaced(gap, before, next)))
        return true;
    return gap.width <= widestTextGap &&
           !m_gutters.isGutter(next.row, gap.start, gap.end, gap.size);
}

bool GapRule::isLineNumber(const Gap &gap, const Segment &before, const Segment &next) const
{
    return before.size < lineNumberSize * next.size && gap.width >= narrowestLineNumberGap &&
           m_beginning.size() <= 5 && lineLabel(m_beginning) == LineLabel::Integer;
}

bool GapRule::isLabelled(const Gap &gap, const Segment &before, const Segment &next) const
{
    // Behind another cell a number is a cell itself, or a heading of the next column, whose gap
    // is no wider than text's.
    if (!m_isFirstOfRow || gap.width > widestLabelGap || m_beginning.size() > longestLabel ||
        before.size < lineNumberSize * next.size)
        return false;
    const LineLabel label = lineLabel(m_beginning);
    const bool isTitle = startsTitle(label, firstGlyph(next).character) ||
                         (label == LineLabel::Label && holdsWord(next));
    return isTitle && !m_gutters.isColumnEnd(next.row, gap.start, gap.end, gap.size, m_lineStart);
}

bool GapRule::holdsWord(const Segment &segment) const
{
    const quint32 count = std::min(segment.count, furthestWord);
    const LayoutGlyph *first = &firstGlyph(segment);
    const auto letters = std::count_if(first, first + count, [](const LayoutGlyph &glyph) {
        return QChar::isLetter(glyph.character);
    });
    return letters >= lettersOfWord;
}

bool GapRule::isLeader(const Segment &before, const Segment &next) const
{
    const auto isDot = [](const LayoutGlyph &glyph) {
        return glyph.character == U'.' || glyph.character == U'\u00b7';
    };
    const LayoutGlyph &last = lastGlyph(before);
    const LayoutGlyph &first = firstGlyph(next);
    if (isDot(last) && isDot(first))
        return true;
    const auto repeats = [&](const LayoutGlyph &dot, const LayoutGlyph *neighbour) {
        return isDot(dot) && neighbour && isDot(*neighbour);
    };
    const size_t lastIndex = before.first + before.count - 1;
    const LayoutGlyph *beforeLast = lastIndex > 0 ? &m_glyphs[lastIndex - 1] : nullptr;
    const LayoutGlyph *behindFirst =
        next.first + 1 < m_glyphs.size() ? &m_glyphs[next.first + 1] : nullptr;
    return repeats(last, beforeLast) || repeats(first, behindFirst);
}

float GapRule::monospacedAdvance(const Segment &segment) const
{
    const LayoutGlyph &first = firstGlyph(segment);
    const float advance = first.end - first.start;
    const quint32 count = std::min(segment.count, 8u);
    for (quint32 i = 1; i < count; ++i) {
        const LayoutGlyph &glyph = m_glyphs[segment.first + i];
        if (glyph.style != first.style ||
            std::abs(glyph.end - glyph.start - advance) > 0.01f * segment.size)
            return 0;
    }
    return advance;
}

bool GapRule::isMonospaced(const Gap &gap, const Segment &before, const Segment &next) const
{
    if (lastGlyph(before).style != firstGlyph(next).style || before.count + next.count < 6)
        return false;
    const float advance = monospacedAdvance(before);
    if (advance < 0.3f * before.size ||
        std::abs(advance - monospacedAdvance(next)) > 0.01f * before.size)
        return false;
    // Columns of such type may stand anywhere; what is one line keeps to the grid.
    const float blanks = (gap.end - gap.start) / advance;
    return std::abs(blanks - std::round(blanks)) < 0.05f;
}

void GapRule::remember(const Segment &segment)
{
    for (quint32 i = 0; i < segment.count && m_beginning.size() <= longestLabel; ++i)
        m_beginning.push_back(m_glyphs[segment.first + i].character);
}

} // namespace Tavrin
