// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/LineGrouper.h>

namespace Tavrin
{

/// Puts the segments of one line into the order of reading.
///
/// Glyphs on the line's own baseline go by their place. A script stays together where it is, so
/// that an exponent over an index does not mix its letters with those. Text from right to left
/// keeps the order of the content. Glyphs printed twice on one place, to look bold, count once.
class LineComposer
{
public:
    LineComposer(const std::vector<LayoutGlyph> &glyphs, const std::vector<Segment> &segments);

    /// Appends the glyphs of the line made of the given segments, at least one.
    DraftLine compose(const quint32 *begin, const quint32 *end, std::vector<quint32> &glyphs);

private:
    /// Glyphs that stay together.
    struct Atom {
        float start;
        float end;
        float baseline;
        quint32 first;
        quint32 count;
    };
    const Segment &mainSegment(const quint32 *begin, const quint32 *end) const;
    void measureCells(DraftLine &line, const Segment &main) const;
    void collectAtoms(const quint32 *begin, const quint32 *end);
    void sortAtoms();
    bool overlaps(const DraftLine &line) const;
    void splitAtoms(const DraftLine &line);
    bool isRightToLeft() const;
    bool repeats(quint32 glyph, const std::vector<quint32> &glyphs, size_t lineStart) const;

    const std::vector<LayoutGlyph> &m_glyphs;
    const std::vector<Segment> &m_segments;
    std::vector<Atom> m_atoms;
    std::vector<Atom> m_split;
};

} // namespace Tavrin
