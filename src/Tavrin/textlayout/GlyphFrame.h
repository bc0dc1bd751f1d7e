// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// The glyphs of a page that run in one direction, in content order, in coordinates in which
/// that direction is to the right. So captions set sideways are grouped by the same code as the
/// text around them.
class GlyphFrame
{
public:
    /// Sorts glyphs by direction, in steps of one degree; the frame with most glyphs comes first.
    ///
    /// Drops what has no place (coordinates that are not finite or beyond any page) and divides
    /// the cell that the parts of a ligature share evenly among them. An accent printed over a
    /// letter becomes part of it.
    static std::vector<GlyphFrame> split(const PageGlyphs &page);

    explicit GlyphFrame(int degrees);

    const std::vector<LayoutGlyph> &glyphs() const { return m_glyphs; }

    /// The upright rectangle around a rectangle of the frame.
    CellBox toUpright(const CellBox &box) const;

private:
    friend class GlyphFrameSplitter;
    LayoutGlyph place(const PageGlyph &glyph) const;
    /// How much of an upright bounding box lies along and across the direction.
    void extent(const PageGlyph &glyph, float &along, float &across) const;

    int m_degrees;
    float m_cos;
    float m_sin;
    std::vector<LayoutGlyph> m_glyphs;
};

} // namespace Tavrin
