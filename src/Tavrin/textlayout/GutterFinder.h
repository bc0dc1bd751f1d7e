// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/textlayout/SegmentRows.h>

namespace Tavrin
{

/// Tells a gap between columns from a wide gap inside a line: the former goes on in the rows
/// above and below, with text on both its sides.
class GutterFinder
{
public:
    explicit GutterFinder(const SegmentRows &rows) : m_rows(rows) {}

    /// Whether a gap of a row, `size` being that of the text beside it, belongs to a gutter.
    /// Looks at a fixed number of rows.
    bool isGutter(quint32 row, float start, float end, float size) const;

    /// Whether it also is the end of a column of running text, in which what stands before the
    /// gap, from `lineStart` on, is the end of a paragraph and no label.
    bool isColumnEnd(quint32 row, float start, float end, float size, float lineStart) const;

private:
    struct Strip {
        float start;
        float end;
        float size;
        int textBefore;
        int textBehind;
        /// Where the text before it starts, and how many rows have text before it that starts
        /// far ahead of that.
        float lineStart;
        int runningText;
    };
    Strip followed(quint32 row, Strip strip) const;
    static bool isGutter(const Strip &strip);
    void follow(Strip &strip, quint32 row, int step) const;
    bool narrow(Strip &strip, const Row &row) const;

    const SegmentRows &m_rows;
};

} // namespace Tavrin
