// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/GutterFinder.h>
#include <Tavrin/textlayout/SegmentRows.h>

namespace Tavrin
{

/// Decides which neighbours in a row are of one line. Goes through a row from its start.
class GapRule
{
public:
    GapRule(const std::vector<LayoutGlyph> &glyphs, const SegmentRows &rows);

    /// Starts a row.
    void begin(const Segment &first);

    /// Whether the next segment of the row goes on with the line that `before` ends. The gap
    /// between them is what their scripts leave of it.
    bool joins(const Segment &before, const Segment &next, float gapStart, float gapEnd);

private:
    struct Gap {
        float start;
        float end;
        /// The larger size of both sides.
        float size;
        /// In sizes.
        float width;
    };
    bool decide(const Gap &gap, const Segment &before, const Segment &next) const;
    bool isLineNumber(const Gap &gap, const Segment &before, const Segment &next) const;
    bool isLabelled(const Gap &gap, const Segment &before, const Segment &next) const;
    bool holdsWord(const Segment &segment) const;
    bool isLeader(const Segment &before, const Segment &next) const;
    bool isMonospaced(const Gap &gap, const Segment &before, const Segment &next) const;
    float monospacedAdvance(const Segment &segment) const;
    void remember(const Segment &segment);

    const LayoutGlyph &firstGlyph(const Segment &segment) const { return m_glyphs[segment.first]; }
    const LayoutGlyph &lastGlyph(const Segment &segment) const
    {
        return m_glyphs[segment.first + segment.count - 1];
    }

    const std::vector<LayoutGlyph> &m_glyphs;
    GutterFinder m_gutters;
    /// The first characters of the present line.
    std::vector<char32_t> m_beginning;
    float m_lineStart = 0;
    bool m_isFirstOfRow = true;
};

} // namespace Tavrin
