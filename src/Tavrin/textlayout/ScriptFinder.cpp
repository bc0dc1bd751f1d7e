// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/ScriptFinder.h>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// All in sizes of the base. TeX raises exponents by 0.29 to 0.41 and lowers indexes by 0.15 to
/// 0.25 (The TeXbook, appendix G); beside tall delimiters it is more. Even lines set solid are
/// farther apart.
constexpr float highestScript = 0.62f;
constexpr float lowestScript = -0.4f;
constexpr float scriptSize = 0.92f;
constexpr float widestScriptGap = 0.4f;
/// Before the text of a footnote its mark may stand farther off.
constexpr float widestMarkGap = 0.75f;
/// Text of the size of its base is shifted less, as in the logo of TeX or on scanned pages.
constexpr float furthestShift = 0.28f;
constexpr float widestShiftGap = 0.6f;
constexpr float widestOverlap = 0.35f;
/// What is set over its base (an accent, an exponent in a hole of the line) is short.
constexpr float widestInside = 3;
constexpr int rowsToSearch = 6;

/// How far a segment is from where it would touch its base, in sizes of the base; nothing if
/// it is not attached to it.
std::optional<float> attachment(const Segment &script, const Segment &base)
{
    if (script.size > base.size * 1.03f)
        return std::nullopt;
    const float size = base.size;
    const float shift = (script.baseline - base.baseline) / size;
    const bool smaller = script.size <= scriptSize * size;
    if (smaller ? shift > highestScript || shift < lowestScript : std::abs(shift) > furthestShift)
        return std::nullopt;
    const float gap = std::max(script.start - base.end, base.start - script.end) / size;
    const bool inside = script.start >= base.start && script.end <= base.end &&
                        script.end - script.start <= widestInside * size;
    const float widest = script.end <= base.start ? widestMarkGap : widestScriptGap;
    if (gap > (smaller ? widest : widestShiftGap) || (gap < -widestOverlap && !inside))
        return std::nullopt;
    return std::abs(shift) + std::max(gap, 0.0f);
}

} // namespace

ScriptFinder::Bases ScriptFinder::basesOf(quint32 segment) const
{
    Best best;
    const std::vector<Segment> &segments = m_rows.segments();
    if (segment > 0)
        consider(best, segment, segment - 1);
    if (segment + 1 < segments.size())
        consider(best, segment, segment + 1);
    if (!best.found) {
        searchRows(best, segment, -1);
        searchRows(best, segment, +1);
    }
    return best.bases;
}

void ScriptFinder::consider(Best &best, quint32 segment, quint32 base) const
{
    const Segment &script = m_rows.segments()[segment];
    const Segment &other = m_rows.segments()[base];
    if (script.row == other.row)
        return;
    const std::optional<float> distance = attachment(script, other);
    if (!distance)
        return;
    const size_t side = other.start + other.end < script.start + script.end ? 0 : 1;
    if (best.found && best.row == other.row) {
        best.bases.segments[side] = base;
        best.distance = std::min(best.distance, *distance);
    } else if (!best.found || *distance < best.distance) {
        best = {};
        best.bases.segments[side] = base;
        best.row = other.row;
        best.distance = *distance;
        best.found = true;
    }
}

void ScriptFinder::considerRow(Best &best, quint32 segment, const Row &row) const
{
    const quint32 place = m_rows.firstFrom(row, m_rows.segments()[segment].start);
    const quint32 from = place < 2 ? 0 : place - 2;
    const quint32 to = std::min(row.count, place + 2);
    for (quint32 i = from; i < to; ++i)
        consider(best, segment, m_rows.at(row, i));
}

void ScriptFinder::searchRows(Best &best, quint32 segment, int step) const
{
    const std::vector<Row> &rows = m_rows.rows();
    const Segment &script = m_rows.segments()[segment];
    qint64 next = script.row;
    for (int i = 0; i < rowsToSearch; ++i) {
        next += step;
        if (next < 0 || next >= static_cast<qint64>(rows.size()))
            return;
        const Row &row = rows[static_cast<size_t>(next)];
        const float size = std::max(row.size, script.size);
        if (std::abs(row.baseline - script.baseline) > highestScript * size)
            return;
        considerRow(best, segment, row);
    }
}

} // namespace Tavrin
