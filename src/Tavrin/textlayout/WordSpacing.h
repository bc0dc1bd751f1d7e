// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// Where a line has blanks: where the print has a gap, whether or not the file has a blank
/// there. Gaps are measured against those between the letters of the same line, so a letterspaced
/// heading does not fall apart.
class WordSpacing
{
public:
    explicit WordSpacing(const std::vector<LayoutGlyph> &glyphs) : m_glyphs(glyphs) {}

    /// Starts a line, given by its glyphs in the order of reading.
    void begin(const quint32 *glyphs, size_t count, bool rightToLeft);

    /// Whether a blank stands before the glyph at a place, from 1, of the line. Places must be
    /// asked for in order.
    bool isBlankBefore(size_t place);

private:
    float tracking(const quint32 *glyphs, size_t count);

    const std::vector<LayoutGlyph> &m_glyphs;
    const quint32 *m_line = nullptr;
    bool m_rightToLeft = false;
    /// The gap between letters of one word, in sizes.
    float m_tracking = 0;
    /// The furthest end so far: behind an index, the exponent over it may reach further.
    float m_reach = 0;
    std::vector<float> m_gaps;
};

} // namespace Tavrin
