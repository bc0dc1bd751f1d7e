// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/GlyphFrame.h>

#include <Tavrin/textlayout/GlyphFrameSplitter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Tavrin
{

std::vector<GlyphFrame> GlyphFrame::split(const PageGlyphs &page)
{
    return GlyphFrameSplitter(page).split();
}

GlyphFrame::GlyphFrame(int degrees) : m_degrees(degrees)
{
    constexpr std::array<float, 4> quarter{1, 0, -1, 0};
    const int quarters = degrees / 90;
    if (degrees % 90 == 0) {
        m_cos = quarter[static_cast<size_t>(quarters % 4)];
        m_sin = quarter[static_cast<size_t>((quarters + 3) % 4)];
    } else {
        const float radians = static_cast<float>(degrees) * std::numbers::pi_v<float> / 180;
        m_cos = std::cos(radians);
        m_sin = std::sin(radians);
    }
}

CellBox GlyphFrame::toUpright(const CellBox &box) const
{
    if (m_degrees == 0 || box.isEmpty())
        return box;
    CellBox result;
    for (const float along : {box.left, box.right}) {
        for (const float across : {box.bottom, box.top}) {
            const float x = along * m_cos - across * m_sin;
            const float y = along * m_sin + across * m_cos;
            result.unite({x, y, x, y});
        }
    }
    return result;
}

void GlyphFrame::extent(const PageGlyph &glyph, float &along, float &across) const
{
    const float width = std::abs(glyph.right - glyph.left);
    const float height = std::abs(glyph.top - glyph.bottom);
    const float c = std::abs(m_cos);
    const float s = std::abs(m_sin);
    const float determinant = c * c - s * s;
    // Near 45 degrees the bounding box does not tell width from height.
    if (std::abs(determinant) < 0.2f) {
        across = glyph.size;
        along = std::max(0.0f, (width + height) / (c + s) - across);
        return;
    }
    along = std::max(0.0f, (width * c - height * s) / determinant);
    across = std::max(0.0f, (height * c - width * s) / determinant);
}

LayoutGlyph GlyphFrame::place(const PageGlyph &glyph) const
{
    LayoutGlyph result;
    result.style = glyph.style;
    result.baseline = glyph.originY * m_cos - glyph.originX * m_sin;
    if (m_degrees == 0) {
        result.start = std::min(glyph.left, glyph.right);
        result.end = std::max(glyph.left, glyph.right);
        result.bottom = std::min(glyph.bottom, glyph.top);
        result.top = std::max(glyph.bottom, glyph.top);
    } else {
        float along = 0;
        float across = 0;
        extent(glyph, along, across);
        const float x = (glyph.left + glyph.right) / 2;
        const float y = (glyph.bottom + glyph.top) / 2;
        result.start = x * m_cos + y * m_sin - along / 2;
        result.end = result.start + along;
        result.bottom = y * m_cos - x * m_sin - across / 2;
        result.top = result.bottom + across;
    }
    const float height = result.top - result.bottom;
    result.size = glyph.size > 0.01f ? glyph.size : std::max(height, 0.01f);
    return result;
}

} // namespace Tavrin
