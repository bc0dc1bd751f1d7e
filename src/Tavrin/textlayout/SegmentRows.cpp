// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/SegmentRows.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tavrin
{

namespace
{

/// All in sizes. A stretched blank between words stays below the widest gap; a column gap that
/// stays below it too has its segments ended by the content order.
constexpr float widestGap = 0.6f;
/// Kerning goes back less than this; an accent set over a letter does not go behind its start.
constexpr float furthestBack = 0.25f;
constexpr float sameBaseline = 0.02f;
constexpr float sameRowOfSegments = 0.1f;
constexpr float sameSize = 0.03f;

bool continues(const Segment &segment, const LayoutGlyph &last, const LayoutGlyph &glyph)
{
    const float size = segment.size;
    return std::abs(glyph.size - size) <= sameSize * size &&
           std::abs(glyph.baseline - segment.baseline) <= sameBaseline * size &&
           glyph.start >= last.start - furthestBack * size &&
           glyph.start <= segment.end + widestGap * size;
}

} // namespace

SegmentRows::SegmentRows(const std::vector<LayoutGlyph> &glyphs)
{
    findSegments(glyphs);
    findRows();
}

void SegmentRows::findSegments(const std::vector<LayoutGlyph> &glyphs)
{
    m_segments.reserve(glyphs.size() / 8 + 1);
    for (quint32 i = 0; i < glyphs.size(); ++i) {
        const LayoutGlyph &glyph = glyphs[i];
        if (i > 0 && continues(m_segments.back(), glyphs[i - 1], glyph)) {
            Segment &segment = m_segments.back();
            segment.start = std::min(segment.start, glyph.start);
            segment.end = std::max(segment.end, glyph.end);
            ++segment.count;
        } else {
            m_segments.push_back({i, 1, glyph.start, glyph.end, glyph.baseline, glyph.size, 0});
        }
    }
}

void SegmentRows::findRows()
{
    m_order.resize(m_segments.size());
    std::iota(m_order.begin(), m_order.end(), 0u);
    std::sort(m_order.begin(), m_order.end(), [this](quint32 a, quint32 b) {
        const float upper = m_segments[a].baseline;
        const float lower = m_segments[b].baseline;
        return upper != lower ? upper > lower : a < b;
    });
    for (quint32 i = 0; i < m_order.size(); ++i) {
        Segment &segment = m_segments[m_order[i]];
        const float tolerance =
            m_rows.empty() ? 0 : sameRowOfSegments * std::min(m_rows.back().size, segment.size);
        if (m_rows.empty() || m_rows.back().baseline - segment.baseline > tolerance)
            m_rows.push_back({segment.baseline, segment.size, i, 0});
        Row &row = m_rows.back();
        row.size = std::max(row.size, segment.size);
        ++row.count;
        segment.row = static_cast<quint32>(m_rows.size() - 1);
    }
    m_reach.resize(m_order.size());
    for (const Row &row : m_rows)
        sortRow(row);
}

void SegmentRows::sortRow(const Row &row)
{
    const auto begin = m_order.begin() + row.first;
    std::sort(begin, begin + row.count, [this](quint32 a, quint32 b) {
        const float left = m_segments[a].start;
        const float right = m_segments[b].start;
        return left != right ? left < right : a < b;
    });
    float reach = m_segments[*begin].end;
    for (quint32 i = row.first; i < row.first + row.count; ++i) {
        reach = std::max(reach, m_segments[m_order[i]].end);
        m_reach[i] = reach;
    }
}

quint32 SegmentRows::firstFrom(const Row &row, float position) const
{
    const auto begin = m_order.begin() + row.first;
    const auto found =
        std::lower_bound(begin, begin + row.count, position,
                         [this](quint32 a, float value) { return m_segments[a].start < value; });
    return static_cast<quint32>(found - begin);
}

} // namespace Tavrin
