// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/GlyphFrame.h>
#include <Tavrin/textlayout/SegmentRows.h>

namespace Tavrin
{

class GapRule;

/// A line before it has a place in the text.
struct DraftLine {
    /// Into GroupedLines::glyphs.
    quint32 first = 0;
    quint32 count = 0;
    /// The baseline and the size of its main text; scripts have others.
    float baseline = 0;
    float size = 0;
    float start = 0;
    float end = 0;
    /// In sizes: how far cells reach up and down from the baseline, by the letters of the main
    /// text. Fonts for formulas claim several lines' height for each of their glyphs.
    float ascent = 10;
    float descent = 10;
    bool rightToLeft = false;
};

struct GroupedLines {
    /// Indexes into the glyphs of the frame, line by line in the order of reading.
    std::vector<quint32> glyphs;
    std::vector<DraftLine> lines;
};

/// Groups the glyphs of one direction into visual lines. Looks at places only, so it does not
/// matter in which order the file prints.
class LineGrouper
{
public:
    static GroupedLines group(const std::vector<LayoutGlyph> &glyphs);

private:
    explicit LineGrouper(const std::vector<LayoutGlyph> &glyphs);
    void joinScripts();
    void joinRows();
    void joinRow(const Row &row, GapRule &rule);
    void composeAll();

    quint32 root(quint32 segment);
    void unite(quint32 a, quint32 b);

    const std::vector<LayoutGlyph> &m_glyphs;
    SegmentRows m_rows;
    /// A union-find forest over segments.
    std::vector<quint32> m_parent;
    /// How far the segments under a root reach.
    struct Extent {
        float start;
        float end;
    };
    std::vector<Extent> m_extents;
    GroupedLines m_result;
};

} // namespace Tavrin
