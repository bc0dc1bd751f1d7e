// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/WordSpacing.h>

#include <QChar>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// In sizes, beyond the gap between letters. Justified text hardly goes below 0.19, kerning
/// hardly above 0.1.
constexpr float narrowestBlank = 0.15f;
/// The same where the file has a blank: only a blank that is pulled together is none.
constexpr float narrowestGivenBlank = 0.03f;
constexpr float tightLetters = 0.05f;
constexpr float widestTracking = 0.5f;
constexpr size_t lettersNeeded = 5;

bool isLetter(char32_t character)
{
    return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z') ||
           (character >= 0x80 && QChar::isLetter(character));
}

/// On whichever side; negative if the cells overlap.
float gapBetween(const LayoutGlyph &before, const LayoutGlyph &next)
{
    return std::max(next.start - before.end, before.start - next.end);
}

} // namespace

void WordSpacing::begin(const quint32 *glyphs, size_t count, bool rightToLeft)
{
    m_line = glyphs;
    m_rightToLeft = rightToLeft;
    m_reach = m_glyphs[glyphs[0]].end;
    m_tracking = tracking(glyphs, count);
}

bool WordSpacing::isBlankBefore(size_t place)
{
    const LayoutGlyph &before = m_glyphs[m_line[place - 1]];
    const LayoutGlyph &next = m_glyphs[m_line[place]];
    const float gap = m_rightToLeft ? gapBetween(before, next) : next.start - m_reach;
    m_reach = std::max(m_reach, next.end);
    const float size = (before.size + next.size) / 2;
    const bool given = before.blankAfter || next.blankBefore;
    const float least = given ? narrowestGivenBlank : narrowestBlank;
    return gap > (m_tracking + least) * size;
}

float WordSpacing::tracking(const quint32 *glyphs, size_t count)
{
    m_gaps.clear();
    size_t tight = 0;
    for (size_t i = 1; i < count; ++i) {
        const LayoutGlyph &before = m_glyphs[glyphs[i - 1]];
        const LayoutGlyph &next = m_glyphs[glyphs[i]];
        if (!isLetter(before.character) || !isLetter(next.character) || next.blankBefore)
            continue;
        const float gap = gapBetween(before, next) / next.size;
        m_gaps.push_back(gap);
        tight += std::abs(gap) < tightLetters;
    }
    // Most text is not letterspaced; one in four gaps is enough to say so.
    if (m_gaps.size() < lettersNeeded || tight * 4 >= m_gaps.size())
        return 0;
    const auto middle = m_gaps.begin() + static_cast<std::ptrdiff_t>(m_gaps.size() * 2 / 5);
    std::nth_element(m_gaps.begin(), middle, m_gaps.end());
    const float gap = *middle;
    const float least = *std::min_element(m_gaps.begin(), middle + 1);
    const bool isEven = least > gap - narrowestBlank;
    return isEven && std::abs(gap) <= widestTracking ? gap : 0;
}

} // namespace Tavrin
