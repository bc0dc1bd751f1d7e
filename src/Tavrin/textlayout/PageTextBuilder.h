// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/textlayout/GlyphFrame.h>
#include <Tavrin/textlayout/LaidOutText.h>
#include <Tavrin/textlayout/LineGrouper.h>
#include <Tavrin/textlayout/WordSpacing.h>

namespace Tavrin
{

/// Flattens the lines of a page into its text, with a font and a box for each character.
class PageTextBuilder
{
public:
    PageTextBuilder(const PageGlyphs &page, const PageGeometry &geometry);

    LaidOutText build();

private:
    /// Text in one style.
    struct Run {
        qsizetype end;
        quint32 style;
    };
    void addFrame(const GlyphFrame &frame);
    void beginLine();
    void endLine();
    void addGlyph(const GlyphFrame &frame, const LayoutGlyph &glyph);
    void addBlank(const GlyphFrame &frame, const LayoutGlyph &before, const LayoutGlyph &next);
    void addUnit(char16_t unit, const CellBox &box, quint32 style);
    StyledText styledText() const;
    void indexPlaces();

    const PageGlyphs &m_page;
    LaidOutText m_text;
    std::vector<Run> m_runs;
    std::vector<CellBox> m_lineBoxes;
};

} // namespace Tavrin
