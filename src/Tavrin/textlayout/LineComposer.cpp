// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/LineComposer.h>

#include <QChar>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// In sizes: segments overlap less by kerning; glyphs printed twice are closer.
constexpr float widestKerning = 0.2f;
constexpr float closestGlyphs = 0.1f;
constexpr float mainBaseline = 0.1f;
constexpr float leastAscent = 0.7f;
constexpr float leastDescent = 0.2f;

bool isRightToLeft(char32_t character)
{
    if (character < 0x590)
        return false;
    const QChar::Direction direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL;
}

} // namespace

LineComposer::LineComposer(const std::vector<LayoutGlyph> &glyphs,
                           const std::vector<Segment> &segments)
    : m_glyphs(glyphs), m_segments(segments)
{
}

DraftLine LineComposer::compose(const quint32 *begin, const quint32 *end,
                                std::vector<quint32> &glyphs)
{
    const Segment &main = mainSegment(begin, end);
    DraftLine line;
    line.first = static_cast<quint32>(glyphs.size());
    line.baseline = main.baseline;
    line.size = main.size;
    measureCells(line, main);
    collectAtoms(begin, end);
    line.rightToLeft = isRightToLeft();
    if (line.rightToLeft) {
        std::sort(m_atoms.begin(), m_atoms.end(),
                  [](const Atom &a, const Atom &b) { return a.first < b.first; });
    } else {
        sortAtoms();
        if (overlaps(line))
            splitAtoms(line);
    }
    line.start = m_atoms.front().start;
    line.end = m_atoms.front().end;
    for (const Atom &atom : m_atoms) {
        line.start = std::min(line.start, atom.start);
        line.end = std::max(line.end, atom.end);
        for (quint32 i = atom.first; i < atom.first + atom.count; ++i) {
            if (!repeats(i, glyphs, line.first))
                glyphs.push_back(i);
        }
    }
    line.count = static_cast<quint32>(glyphs.size()) - line.first;
    return line;
}

const Segment &LineComposer::mainSegment(const quint32 *begin, const quint32 *end) const
{
    const auto weight = [this](quint32 index) {
        const Segment &segment = m_segments[index];
        return static_cast<float>(segment.count) * segment.size * segment.size;
    };
    return m_segments[*std::max_element(
        begin, end, [&](quint32 a, quint32 b) { return weight(a) < weight(b); })];
}

void LineComposer::measureCells(DraftLine &line, const Segment &main) const
{
    const LayoutGlyph *first = &m_glyphs[main.first];
    const LayoutGlyph *last = first + main.count;
    const LayoutGlyph *letter = std::find_if(first, last, [](const LayoutGlyph &glyph) {
        return glyph.character < 0x250 && QChar::isLetterOrNumber(glyph.character);
    });
    if (letter == last)
        return;
    line.ascent = std::max((letter->top - letter->baseline) / letter->size, leastAscent);
    line.descent = std::max((letter->baseline - letter->bottom) / letter->size, leastDescent);
}

void LineComposer::collectAtoms(const quint32 *begin, const quint32 *end)
{
    m_atoms.clear();
    for (const quint32 *index = begin; index != end; ++index) {
        const Segment &segment = m_segments[*index];
        m_atoms.push_back(
            {segment.start, segment.end, segment.baseline, segment.first, segment.count});
    }
}

void LineComposer::sortAtoms()
{
    std::sort(m_atoms.begin(), m_atoms.end(), [](const Atom &a, const Atom &b) {
        if (a.start != b.start)
            return a.start < b.start;
        return a.baseline != b.baseline ? a.baseline > b.baseline : a.first < b.first;
    });
}

bool LineComposer::overlaps(const DraftLine &line) const
{
    float reach = m_atoms.front().end;
    bool reachIsMain = true;
    for (size_t i = 0; i < m_atoms.size(); ++i) {
        const Atom &atom = m_atoms[i];
        if (i > 0 && reachIsMain && atom.start < reach - widestKerning * line.size)
            return true;
        if (i == 0 || atom.end >= reach) {
            reach = atom.end;
            reachIsMain = std::abs(atom.baseline - line.baseline) <= mainBaseline * line.size;
        }
    }
    return false;
}

void LineComposer::splitAtoms(const DraftLine &line)
{
    m_split.clear();
    for (const Atom &atom : m_atoms) {
        if (std::abs(atom.baseline - line.baseline) > mainBaseline * line.size) {
            m_split.push_back(atom);
            continue;
        }
        for (quint32 i = atom.first; i < atom.first + atom.count; ++i)
            m_split.push_back({m_glyphs[i].start, m_glyphs[i].end, atom.baseline, i, 1});
    }
    m_atoms.swap(m_split);
    sortAtoms();
}

bool LineComposer::isRightToLeft() const
{
    size_t leftward = 0;
    size_t rightward = 0;
    for (const Atom &atom : m_atoms) {
        for (quint32 i = atom.first; i < atom.first + atom.count; ++i) {
            if (Tavrin::isRightToLeft(m_glyphs[i].character))
                ++leftward;
            else
                rightward += QChar::isLetter(m_glyphs[i].character);
        }
    }
    return leftward > rightward;
}

bool LineComposer::repeats(quint32 glyph, const std::vector<quint32> &glyphs,
                           size_t lineStart) const
{
    if (glyphs.size() == lineStart)
        return false;
    const LayoutGlyph &last = m_glyphs[glyphs.back()];
    const LayoutGlyph &next = m_glyphs[glyph];
    const float near = std::min(closestGlyphs * next.size, 0.5f * (next.end - next.start));
    return last.character == next.character && std::abs(next.start - last.start) < near &&
           std::abs(next.baseline - last.baseline) < near && std::abs(next.size - last.size) < near;
}

} // namespace Tavrin
