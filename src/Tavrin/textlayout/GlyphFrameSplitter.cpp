// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/GlyphFrameSplitter.h>

#include <Tavrin/textlayout/Accent.h>

#include <QChar>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace Tavrin
{

namespace
{

/// Far beyond the largest page a file can have (14,400 units, ISO 32000-1, annex C).
constexpr float farthest = 1e5f;

bool hasPlace(const PageGlyph &glyph)
{
    const std::array values{glyph.left,       glyph.bottom,     glyph.right,
                            glyph.top,        glyph.originX,    glyph.originY,
                            glyph.directionX, glyph.directionY, glyph.size};
    // Not a number fails every comparison.
    return std::all_of(values.begin(), values.end(),
                       [](float value) { return std::abs(value) <= farthest; });
}

int quantisedDirection(const PageGlyph &glyph)
{
    if (glyph.directionX > 0 && std::abs(glyph.directionY) < 0.008f * glyph.directionX)
        return 0;
    const float degrees =
        std::atan2(glyph.directionY, glyph.directionX) * 180 / std::numbers::pi_v<float>;
    return (static_cast<int>(std::lround(degrees)) + 360) % 360;
}

bool isBlank(char32_t character)
{
    return character == U' ' || character == U'\u00a0' || character == U'\t' ||
           (character >= U'\u2000' && character <= U'\u200a') || character == U'\u202f' ||
           character == U'\u205f' || character == U'\u3000';
}

/// Characters that print nothing and have no width.
bool isInvisible(char32_t character)
{
    return character == U'\u200b' || character == U'\u2060' || character == U'\ufeff';
}

/// What stands in the text for a character of the file: none that would break a line.
char32_t printedCharacter(char32_t character)
{
    if (character == U'\u00ad')
        return U'-';
    const bool isText = character < 0x110000 && !(character >= 0xd800 && character < 0xe000);
    const bool isControl = character < 0x20 || (character >= 0x7f && character < 0xa0) ||
                           character == 0x2028 || character == 0x2029;
    return isText && !isControl ? character : U'\ufffd';
}

/// The parts of a ligature: one glyph in the file, so one origin; all but the first have the
/// same cell or none.
bool sharesCell(const PageGlyph &first, const PageGlyph &next)
{
    const float tolerance = 0.01f * std::abs(first.size);
    const bool sameOrigin = std::abs(first.originX - next.originX) <= tolerance &&
                            std::abs(first.originY - next.originY) <= tolerance;
    if (!sameOrigin || first.style != next.style || isAccent(first.character) ||
        isAccent(next.character))
        return false;
    const bool sameCell = next.left == first.left && next.right == first.right &&
                          next.bottom == first.bottom && next.top == first.top;
    return sameCell || next.right - next.left <= tolerance || next.top - next.bottom <= tolerance;
}

/// No real ligature is longer; a longer pile of glyphs is something else.
constexpr size_t longestLigature = 4;

} // namespace

std::vector<GlyphFrame> GlyphFrameSplitter::split()
{
    for (size_t i = 0; i < m_page.glyphs.size();)
        i += add(i);
    std::stable_sort(m_frames.begin(), m_frames.end(), [](const auto &a, const auto &b) {
        return a.m_glyphs.size() > b.m_glyphs.size();
    });
    return std::move(m_frames);
}

size_t GlyphFrameSplitter::add(size_t index)
{
    const PageGlyph &glyph = m_page.glyphs[index];
    if (!hasPlace(glyph) || isInvisible(glyph.character))
        return 1;
    GlyphFrame &frame = this->frame(quantisedDirection(glyph));
    if (isBlank(glyph.character)) {
        m_afterBlank = true;
        if (m_last)
            m_last->m_glyphs.back().blankAfter = true;
        return 1;
    }
    const size_t count = ligatureLength(index);
    addCell(frame, index, count);
    m_last = &frame;
    m_afterBlank = false;
    return count;
}

size_t GlyphFrameSplitter::ligatureLength(size_t index) const
{
    const auto &glyphs = m_page.glyphs;
    size_t count = 1;
    while (count < longestLigature && index + count < glyphs.size() &&
           sharesCell(glyphs[index], glyphs[index + count]) &&
           !isBlank(glyphs[index + count].character))
        ++count;
    return count;
}

void GlyphFrameSplitter::addCell(GlyphFrame &frame, size_t index, size_t count)
{
    LayoutGlyph part = frame.place(m_page.glyphs[index]);
    const float start = part.start;
    const float width = (part.end - part.start) / static_cast<float>(count);
    const quint32 styles = static_cast<quint32>(m_page.styles.size());
    part.style = styles ? std::min(part.style, styles - 1) : 0;
    part.blankBefore = m_afterBlank;
    for (size_t i = 0; i < count; ++i) {
        part.character = printedCharacter(m_page.glyphs[index + i].character);
        part.start = start + width * static_cast<float>(i);
        part.end = part.start + width;
        if (!compose(frame, part))
            frame.m_glyphs.push_back(part);
        part.blankBefore = false;
    }
}

bool GlyphFrameSplitter::compose(GlyphFrame &frame, const LayoutGlyph &glyph)
{
    if (frame.m_glyphs.empty())
        return false;
    LayoutGlyph &last = frame.m_glyphs.back();
    const char32_t composed = composedCharacter(last, glyph);
    if (!composed)
        return false;
    if (!QChar::isLetter(last.character)) {
        const bool blankBefore = last.blankBefore;
        last = glyph;
        last.blankBefore = blankBefore;
    }
    last.character = composed;
    return true;
}

GlyphFrame &GlyphFrameSplitter::frame(int degrees)
{
    short &index = m_frameOf[static_cast<size_t>(degrees)];
    if (index < 0) {
        index = static_cast<short>(m_frames.size());
        // References to frames are kept, so the list must not move.
        m_frames.reserve(m_frameOf.size());
        m_frames.emplace_back(degrees);
        if (m_frames.size() == 1)
            m_frames.back().m_glyphs.reserve(m_page.glyphs.size());
    }
    return m_frames[static_cast<size_t>(index)];
}

} // namespace Tavrin
