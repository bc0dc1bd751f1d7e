// SPDX-License-Identifier: Apache-2.0
#include "PageSketch.h"

#include <support/Test.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

double letterWidth(char32_t letter, bool fixed)
{
    if (fixed)
        return 0.5;
    if (letter == U'i' || letter == U'l' || letter == U'.')
        return 0.3;
    return letter == U'm' || letter == U'w' ? 0.8 : 0.5;
}

} // namespace

PageSketch::PageSketch()
{
    geometry.mediaBox = geometry.cropBox = {{0, 0}, {600, 800}};
    glyphs.styles.push_back({{u"Serif"_s, 10, 0}, 0xff000000});
    glyphs.styles.push_back({{u"Sans"_s, 14, TextFont::Bold}, 0xff0000ff});
}

Point PageSketch::print(const QString &text, Point place, const Look &look)
{
    const Point along{look.direction.x * look.size, look.direction.y * look.size};
    for (const uint character : text.toUcs4()) {
        const bool blank = character == U' ';
        const double width = blank ? look.blankWidth : letterWidth(character, look.fixedWidth);
        const auto corner = [&](double x, double y) {
            return Point{place.x + x * along.x - y * along.y, place.y + x * along.y + y * along.x};
        };
        const Rect cell = Rect::fromCorners(corner(0, -0.2), corner(width, 0.8))
                              .united(Rect::fromCorners(corner(0, 0.8), corner(width, -0.2)));
        PageGlyph glyph;
        glyph.character = character;
        glyph.left = static_cast<float>(cell.minX());
        glyph.bottom = static_cast<float>(cell.minY());
        glyph.right = static_cast<float>(cell.maxX());
        glyph.top = static_cast<float>(cell.maxY());
        glyph.originX = static_cast<float>(place.x);
        glyph.originY = static_cast<float>(place.y);
        glyph.directionX = static_cast<float>(look.direction.x);
        glyph.directionY = static_cast<float>(look.direction.y);
        glyph.size = static_cast<float>(look.size);
        glyph.style = look.style;
        if (!blank || look.blankGlyphs)
            glyphs.glyphs.push_back(glyph);
        place = corner(width + (blank ? 0 : look.tracking), 0);
    }
    return place;
}

void PageSketch::ligate(size_t count, bool followersHaveNoWidth)
{
    const size_t first = glyphs.glyphs.size() - count;
    for (size_t i = 1; i < count; ++i) {
        PageGlyph &glyph = glyphs.glyphs[first + i];
        const char32_t character = glyph.character;
        glyph = glyphs.glyphs[first];
        glyph.character = character;
        if (followersHaveNoWidth)
            glyph.right = glyph.left;
    }
}

} // namespace Tavrin
