// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PageText.h>

#include <Tavrin/textlayout/PageTextBuilder.h>

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace Tavrin
{

namespace
{

/// A point in print touches a few stretches; a page made to pile up all its glyphs at one point
/// must not cost more.
constexpr int mostStretches = 48;

/// How far a point is from the middle of a box, 1 being its edge.
float offCenter(const CellBox &box, float x, float y)
{
    const float halfWidth = std::max((box.right - box.left) / 2, 1e-3f);
    const float halfHeight = std::max((box.top - box.bottom) / 2, 1e-3f);
    return std::max(std::abs(x - box.centerX()) / halfWidth,
                    std::abs(y - box.centerY()) / halfHeight);
}

/// How far a point is from the middle between the long sides of a line.
float offBaseline(const CellBox &box, float x, float y)
{
    const float width = box.right - box.left;
    const float height = box.top - box.bottom;
    return width >= height ? std::abs(y - box.centerY()) / std::max(height, 1e-3f)
                           : std::abs(x - box.centerX()) / std::max(width, 1e-3f);
}

/// A rectangle of the page in upright space.
CellBox area(const LaidOutText &text, const Rect &page)
{
    const Rect upright = text.geometry.toUpright(page);
    const auto round = [](double value) {
        constexpr double limit = 1e7;
        return static_cast<float>(std::clamp(value, -limit, limit));
    };
    return {round(upright.minX()), round(upright.minY()), round(upright.maxX()),
            round(upright.maxY())};
}

/// The last line that begins at or before an index.
const PageTextLine &lineOf(const LaidOutText &text, qsizetype index)
{
    const auto next = std::upper_bound(
        text.lines.begin(), text.lines.end(), index,
        [](qsizetype i, const PageTextLine &line) { return i < line.range.location; });
    return *std::prev(next);
}

/// Calls back for units whose box touches the area, looking at no more than so many stretches.
template <class Callback>
void forEachUnit(const LaidOutText &text, const CellBox &area, int stretches, Callback callback)
{
    text.unitTree.forEach(area, [&](size_t stretch) {
        const size_t end = std::min((stretch + 1) * LaidOutText::unitsPerBox, text.boxes.size());
        for (size_t i = stretch * LaidOutText::unitsPerBox; i < end; ++i) {
            if (text.boxes[i].intersects(area))
                callback(i);
        }
        return --stretches > 0;
    });
}

} // namespace

PageText::PageText(const PageGlyphs &glyphs, const PageGeometry &geometry)
    : m_text(std::make_unique<const LaidOutText>(PageTextBuilder(glyphs, geometry).build()))
{
}

PageText::~PageText() = default;

const QString &PageText::string() const
{
    return m_text->string;
}

const StyledText &PageText::styledText() const
{
    return m_text->styledText;
}

const std::vector<PageTextLine> &PageText::lines() const
{
    return m_text->lines;
}

const std::vector<Rect> &PageText::drawings() const
{
    return m_text->drawings;
}

Rect PageText::characterBounds(qsizetype index) const
{
    if (index < 0 || index >= m_text->string.size())
        return Rect::null();
    const CellBox &box = m_text->boxes[static_cast<size_t>(index)];
    if (box.isEmpty())
        return Rect::null();
    return m_text->geometry.toPage(Rect::fromCorners({box.left, box.bottom}, {box.right, box.top}));
}

std::optional<qsizetype> PageText::characterIndex(Point point) const
{
    const CellBox place = area(*m_text, {point, {}});
    std::optional<qsizetype> best;
    float bestDistance = std::numeric_limits<float>::max();
    forEachUnit(*m_text, place, mostStretches, [&](size_t unit) {
        const qsizetype index = static_cast<qsizetype>(unit);
        // Any blank is farther than any printed character.
        const float distance = offCenter(m_text->boxes[unit], place.left, place.bottom) +
                               (m_text->string[index] == u' ' ? 2.F : 0.F);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = index;
        }
    });
    return best;
}

std::optional<TextRange> PageText::lineAt(Point point) const
{
    if (const std::optional<qsizetype> index = characterIndex(point))
        return lineOf(*m_text, *index).range;
    const CellBox place = area(*m_text, {point, {}});
    std::optional<size_t> best;
    float bestDistance = std::numeric_limits<float>::max();
    int candidates = mostStretches;
    m_text->lineTree.forEach(place, [&](size_t line) {
        const float distance =
            offBaseline(area(*m_text, m_text->lines[line].bounds), place.left, place.bottom);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = line;
        }
        return --candidates > 0;
    });
    return best ? std::optional(m_text->lines[*best].range) : std::nullopt;
}

std::optional<TextRange> PageText::wordAt(Point point) const
{
    const std::optional<qsizetype> index = characterIndex(point);
    if (!index || m_text->string[*index] == u' ')
        return std::nullopt;
    const TextRange line = lineOf(*m_text, *index).range;
    // Words do not reach over blanks, and a line may be as long as a page.
    qsizetype start = *index;
    while (start > line.location && m_text->string[start - 1] != u' ')
        --start;
    qsizetype end = *index + 1;
    while (end < line.end() && m_text->string[end] != u' ')
        ++end;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, m_text->string.constData() + start,
                               end - start);
    finder.setPosition(*index - start + 1);
    const qsizetype wordStart = finder.toPreviousBoundary();
    const qsizetype wordEnd = finder.toNextBoundary();
    return TextRange{start + wordStart, wordEnd - wordStart};
}

std::vector<TextRange> PageText::rangesIn(const Rect &rect) const
{
    std::vector<TextRange> ranges;
    if (rect.isNull())
        return ranges;
    const CellBox wanted = area(*m_text, rect);
    forEachUnit(*m_text, wanted, std::numeric_limits<int>::max(), [&](size_t unit) {
        const CellBox &box = m_text->boxes[unit];
        if (!wanted.contains(box.centerX(), box.centerY()))
            return;
        const qsizetype index = static_cast<qsizetype>(unit);
        const bool follows = !ranges.empty() &&
                             (ranges.back().end() == index || (ranges.back().end() + 1 == index &&
                                                               m_text->string[index - 1] == u'\n'));
        if (follows)
            ranges.back().length = index + 1 - ranges.back().location;
        else
            ranges.push_back({index, 1});
    });
    return ranges;
}

} // namespace Tavrin
