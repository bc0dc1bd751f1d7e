// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/GutterFinder.h>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// In sizes: what must be free in all rows, and how far apart rows of one column may be.
constexpr float narrowestGutter = 0.75f;
constexpr float furthestRow = 3.5f;
/// A label is indented by less, compared to its neighbours.
constexpr float farAhead = 6;
constexpr int rowsToLookAt = 8;
constexpr int rowsNeeded = 3;

} // namespace

bool GutterFinder::isGutter(quint32 row, float start, float end, float size) const
{
    return isGutter(followed(row, {start, end, size, 1, 1, 0, 0}));
}

bool GutterFinder::isColumnEnd(quint32 row, float start, float end, float size,
                               float lineStart) const
{
    const Strip strip = followed(row, {start, end, size, 1, 1, lineStart, 0});
    return isGutter(strip) && strip.runningText >= rowsNeeded - 1;
}

bool GutterFinder::isGutter(const Strip &strip)
{
    return strip.textBefore >= rowsNeeded && strip.textBehind >= rowsNeeded;
}

GutterFinder::Strip GutterFinder::followed(quint32 row, Strip strip) const
{
    follow(strip, row, -1);
    follow(strip, row, +1);
    return strip;
}

void GutterFinder::follow(Strip &strip, quint32 row, int step) const
{
    const std::vector<Row> &rows = m_rows.rows();
    float baseline = rows[row].baseline;
    qint64 next = row;
    for (int i = 0; i < rowsToLookAt; ++i) {
        next += step;
        if (next < 0 || next >= static_cast<qint64>(rows.size()))
            return;
        const Row &other = rows[static_cast<size_t>(next)];
        if (std::abs(other.baseline - baseline) > furthestRow * strip.size)
            return;
        if (!narrow(strip, other))
            return;
        baseline = other.baseline;
    }
}

bool GutterFinder::narrow(Strip &strip, const Row &row) const
{
    const float least = narrowestGutter * strip.size;
    const quint32 before = m_rows.firstFrom(row, strip.start);
    float start = strip.start;
    if (before > 0)
        start = std::max(start, m_rows.reach(row, before));
    // Segments that start inside the strip but close to its start push that further; the first
    // that leaves enough room before it ends the strip.
    quint32 place = before;
    while (place < row.count && m_rows.segment(row, place).start < start + least) {
        start = std::max(start, m_rows.segment(row, place).end);
        ++place;
    }
    float end = strip.end;
    if (place < row.count)
        end = std::min(end, m_rows.segment(row, place).start);
    if (end - start < least)
        return false;
    strip.start = start;
    strip.end = end;
    strip.textBefore += place > 0;
    strip.textBehind += place < row.count;
    strip.runningText += place > 0 && m_rows.reach(row, place) > strip.lineStart &&
                         m_rows.segment(row, 0).start < strip.lineStart - farAhead * strip.size;
    return true;
}

} // namespace Tavrin
