// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <vector>

#include <Tavrin/textlayout/GlyphFrame.h>

namespace Tavrin
{

/// Distributes the glyphs of a page among frames, in one pass over the content; see
/// GlyphFrame::split.
class GlyphFrameSplitter
{
public:
    explicit GlyphFrameSplitter(const PageGlyphs &page) : m_page(page) { m_frameOf.fill(-1); }

    /// Once.
    std::vector<GlyphFrame> split();

private:
    /// Adds the glyph at an index and those that share its cell; how many those are.
    size_t add(size_t index);
    size_t ligatureLength(size_t index) const;
    void addCell(GlyphFrame &frame, size_t index, size_t count);
    /// Makes one of an accent and its letter; the cell is the letter's.
    static bool compose(GlyphFrame &frame, const LayoutGlyph &glyph);
    GlyphFrame &frame(int degrees);

    const PageGlyphs &m_page;
    std::vector<GlyphFrame> m_frames;
    /// By degrees; -1 where there is no frame yet.
    std::array<short, 360> m_frameOf;
    /// The frame of the last printed glyph.
    GlyphFrame *m_last = nullptr;
    bool m_afterBlank = false;
};

} // namespace Tavrin
