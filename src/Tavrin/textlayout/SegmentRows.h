// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// Glyphs that follow each other in the content on one baseline, in one size, without a gap
/// wider than a blank. Most are a whole line, some a single exponent.
struct Segment {
    quint32 first = 0;
    quint32 count = 0;
    float start = 0;
    float end = 0;
    float baseline = 0;
    float size = 0;
    /// Index of the row that it lies in.
    quint32 row = 0;
};

/// Segments on about the same baseline, across the whole page.
struct Row {
    float baseline = 0;
    float size = 0;
    /// Into SegmentRows::order, which sorts the segments of a row by their start.
    quint32 first = 0;
    quint32 count = 0;
};

/// The segments of a frame, sorted into rows from the top down.
class SegmentRows
{
public:
    explicit SegmentRows(const std::vector<LayoutGlyph> &glyphs);

    const std::vector<Segment> &segments() const { return m_segments; }
    const std::vector<Row> &rows() const { return m_rows; }
    /// The segment at a place in a row.
    quint32 at(const Row &row, quint32 place) const { return m_order[row.first + place]; }
    const Segment &segment(const Row &row, quint32 place) const
    {
        return m_segments[at(row, place)];
    }

    /// The place of the first segment of a row that starts at or behind a position.
    quint32 firstFrom(const Row &row, float position) const;

    /// The furthest end among the first `count` segments of a row.
    float reach(const Row &row, quint32 count) const { return m_reach[row.first + count - 1]; }

private:
    void findSegments(const std::vector<LayoutGlyph> &glyphs);
    void findRows();
    void sortRow(const Row &row);

    std::vector<Segment> m_segments;
    std::vector<quint32> m_order;
    std::vector<float> m_reach;
    std::vector<Row> m_rows;
};

} // namespace Tavrin
