// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/PageTextBuilder.h>

#include <Tavrin/textlayout/ReadingOrder.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

Rect toRect(const CellBox &box)
{
    return Rect::fromCorners({box.left, box.bottom}, {box.right, box.top});
}

/// A glyph whose cell is no taller than those of its line.
LayoutGlyph cut(LayoutGlyph glyph, const DraftLine &line)
{
    glyph.top = std::min(glyph.top, glyph.baseline + line.ascent * glyph.size);
    glyph.bottom = std::max(glyph.bottom, glyph.baseline - line.descent * glyph.size);
    return glyph;
}

} // namespace

PageTextBuilder::PageTextBuilder(const PageGlyphs &page, const PageGeometry &geometry)
    : m_page(page)
{
    m_text.geometry = geometry;
    m_text.drawings = page.drawings;
}

LaidOutText PageTextBuilder::build()
{
    const size_t expected = m_page.glyphs.size() + m_page.glyphs.size() / 8;
    m_text.string.reserve(static_cast<qsizetype>(expected));
    m_text.boxes.reserve(expected);
    for (const GlyphFrame &frame : GlyphFrame::split(m_page))
        addFrame(frame);
    m_text.string.squeeze();
    m_text.boxes.shrink_to_fit();
    m_text.styledText = styledText();
    // The two share their characters from here on.
    m_text.string = m_text.styledText.string();
    indexPlaces();
    return std::move(m_text);
}

void PageTextBuilder::addFrame(const GlyphFrame &frame)
{
    if (frame.glyphs().empty())
        return;
    GroupedLines grouped = LineGrouper::group(frame.glyphs());
    ReadingOrder::sort(grouped.lines);
    WordSpacing spacing(frame.glyphs());
    for (const DraftLine &line : grouped.lines) {
        const quint32 *glyphs = grouped.glyphs.data() + line.first;
        spacing.begin(glyphs, line.count, line.rightToLeft);
        beginLine();
        LayoutGlyph last = cut(frame.glyphs()[glyphs[0]], line);
        addGlyph(frame, last);
        for (size_t i = 1; i < line.count; ++i) {
            const LayoutGlyph next = cut(frame.glyphs()[glyphs[i]], line);
            if (spacing.isBlankBefore(i))
                addBlank(frame, last, next);
            addGlyph(frame, next);
            last = next;
        }
        endLine();
    }
}

void PageTextBuilder::beginLine()
{
    if (!m_text.lines.empty())
        addUnit(u'\n', {}, m_runs.back().style);
    m_text.lines.push_back({{m_text.string.size(), 0}, Rect::null()});
    m_lineBoxes.push_back({});
}

void PageTextBuilder::endLine()
{
    PageTextLine &line = m_text.lines.back();
    line.range.length = m_text.string.size() - line.range.location;
    line.bounds = m_text.geometry.toPage(toRect(m_lineBoxes.back()));
}

void PageTextBuilder::addGlyph(const GlyphFrame &frame, const LayoutGlyph &glyph)
{
    const CellBox box =
        frame.toUpright({glyph.start, glyph.bottom, glyph.end, std::max(glyph.bottom, glyph.top)});
    m_lineBoxes.back().unite(box);
    if (QChar::requiresSurrogates(glyph.character)) {
        addUnit(QChar::highSurrogate(glyph.character), box, glyph.style);
        addUnit(QChar::lowSurrogate(glyph.character), box, glyph.style);
    } else {
        addUnit(static_cast<char16_t>(glyph.character), box, glyph.style);
    }
}

void PageTextBuilder::addBlank(const GlyphFrame &frame, const LayoutGlyph &before,
                               const LayoutGlyph &next)
{
    const bool forward = before.start <= next.start;
    const float start = forward ? before.end : next.end;
    const float end = forward ? next.start : before.start;
    // Behind an exponent over an index, the nearer of both may be the last.
    const CellBox gap{std::min(start, end), before.bottom, std::max(start, end), before.top};
    addUnit(u' ', frame.toUpright(gap), before.style);
}

void PageTextBuilder::addUnit(char16_t unit, const CellBox &box, quint32 style)
{
    m_text.string.append(QChar(unit));
    m_text.boxes.push_back(box);
    if (m_runs.empty() || m_runs.back().style != style)
        m_runs.push_back({0, style});
    m_runs.back().end = m_text.string.size();
}

StyledText PageTextBuilder::styledText() const
{
    StyledText result;
    qsizetype start = 0;
    for (const Run &run : m_runs) {
        TextAttributes attributes;
        if (run.style < m_page.styles.size()) {
            attributes.font = m_page.styles[run.style].font;
            attributes.foregroundColor = m_page.styles[run.style].color;
        }
        result.append(m_text.string.sliced(start, run.end - start), attributes);
        start = run.end;
    }
    return result;
}

void PageTextBuilder::indexPlaces()
{
    constexpr size_t unitsPerBox = LaidOutText::unitsPerBox;
    std::vector<CellBox> boxes((m_text.boxes.size() + unitsPerBox - 1) / unitsPerBox);
    for (size_t i = 0; i < m_text.boxes.size(); ++i)
        boxes[i / unitsPerBox].unite(m_text.boxes[i]);
    m_text.unitTree = BoxTree(std::move(boxes));
    m_text.lineTree = BoxTree(std::move(m_lineBoxes));
}

} // namespace Tavrin
