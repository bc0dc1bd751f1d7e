// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <vector>

namespace Tavrin
{

/// A printed glyph as line grouping sees it: along and across its own baseline, in points.
///
/// `start` and `end` count along the reading direction, `bottom`, `baseline` and `top` across
/// it, upward. Blanks of the file are no glyphs here; they are noted on their neighbours.
struct LayoutGlyph {
    float start = 0;
    float end = 0;
    float baseline = 0;
    float bottom = 0;
    float top = 0;
    /// The font size as printed; never 0.
    float size = 0;
    char32_t character = 0;
    /// Index into PageGlyphs::styles; always valid.
    quint32 style = 0;
    /// The file has a blank glyph directly before, or after, this one in its content.
    bool blankBefore = false;
    bool blankAfter = false;
};

/// An upright or frame rectangle in single precision. Empty when right < left.
struct CellBox {
    float left = 0;
    float bottom = 0;
    float right = -1;
    float top = -1;

    bool isEmpty() const { return right < left; }
    float centerX() const { return (left + right) / 2; }
    float centerY() const { return (bottom + top) / 2; }
    bool contains(float x, float y) const
    {
        return x >= left && x <= right && y >= bottom && y <= top;
    }
    bool intersects(const CellBox &other) const
    {
        return left <= other.right && other.left <= right && bottom <= other.top &&
               other.bottom <= top && !isEmpty() && !other.isEmpty();
    }
    void unite(const CellBox &other)
    {
        if (other.isEmpty())
            return;
        if (isEmpty()) {
            *this = other;
            return;
        }
        left = left < other.left ? left : other.left;
        bottom = bottom < other.bottom ? bottom : other.bottom;
        right = right > other.right ? right : other.right;
        top = top > other.top ? top : other.top;
    }
};

} // namespace Tavrin
