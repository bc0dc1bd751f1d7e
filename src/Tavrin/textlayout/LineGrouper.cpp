// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/LineGrouper.h>

#include <Tavrin/textlayout/GapRule.h>
#include <Tavrin/textlayout/LineComposer.h>
#include <Tavrin/textlayout/ScriptFinder.h>

#include <algorithm>
#include <numeric>

namespace Tavrin
{

GroupedLines LineGrouper::group(const std::vector<LayoutGlyph> &glyphs)
{
    LineGrouper grouper(glyphs);
    grouper.joinScripts();
    grouper.joinRows();
    grouper.composeAll();
    return std::move(grouper.m_result);
}

LineGrouper::LineGrouper(const std::vector<LayoutGlyph> &glyphs)
    : m_glyphs(glyphs), m_rows(glyphs), m_parent(m_rows.segments().size())
{
    std::iota(m_parent.begin(), m_parent.end(), 0u);
    m_extents.reserve(m_parent.size());
    for (const Segment &segment : m_rows.segments())
        m_extents.push_back({segment.start, segment.end});
}

void LineGrouper::joinRows()
{
    GapRule rule(m_glyphs, m_rows);
    for (const Row &row : m_rows.rows())
        joinRow(row, rule);
}

void LineGrouper::joinRow(const Row &row, GapRule &rule)
{
    const std::vector<Segment> &segments = m_rows.segments();
    quint32 last = m_rows.at(row, 0);
    rule.begin(segments[last]);
    float reach = m_extents[root(last)].end;
    for (quint32 place = 1; place < row.count; ++place) {
        const quint32 next = m_rows.at(row, place);
        const Extent extent = m_extents[root(next)];
        if (rule.joins(segments[last], segments[next], reach, extent.start))
            unite(last, next);
        reach = std::max(reach, extent.end);
        if (segments[next].end >= segments[last].end)
            last = next;
    }
}

void LineGrouper::joinScripts()
{
    const ScriptFinder finder(m_rows);
    for (quint32 i = 0; i < m_parent.size(); ++i) {
        for (const std::optional<quint32> &base : finder.basesOf(i).segments) {
            if (base)
                unite(i, *base);
        }
    }
}

void LineGrouper::composeAll()
{
    // A counting sort of the segments by the line they belong to.
    std::vector<quint32> ends(m_parent.size() + 1, 0);
    for (quint32 i = 0; i < m_parent.size(); ++i)
        ++ends[root(i) + 1];
    std::partial_sum(ends.begin(), ends.end(), ends.begin());
    std::vector<quint32> starts(ends.begin(), ends.end() - 1);
    std::vector<quint32> members(m_parent.size());
    for (quint32 i = 0; i < m_parent.size(); ++i)
        members[starts[root(i)]++] = i;

    LineComposer composer(m_glyphs, m_rows.segments());
    m_result.glyphs.reserve(m_glyphs.size());
    for (quint32 i = 0; i < m_parent.size(); ++i) {
        const quint32 *begin = members.data() + ends[i];
        const quint32 *end = members.data() + ends[i + 1];
        if (begin != end)
            m_result.lines.push_back(composer.compose(begin, end, m_result.glyphs));
    }
}

quint32 LineGrouper::root(quint32 segment)
{
    while (m_parent[segment] != segment) {
        m_parent[segment] = m_parent[m_parent[segment]];
        segment = m_parent[segment];
    }
    return segment;
}

void LineGrouper::unite(quint32 a, quint32 b)
{
    const quint32 first = root(a);
    const quint32 second = root(b);
    const auto [upper, lower] = std::minmax(first, second);
    m_parent[lower] = upper;
    m_extents[upper].start = std::min(m_extents[upper].start, m_extents[lower].start);
    m_extents[upper].end = std::max(m_extents[upper].end, m_extents[lower].end);
}

} // namespace Tavrin
