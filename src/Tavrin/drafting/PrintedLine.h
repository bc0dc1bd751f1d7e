// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// A visual line as far as finding headings needs it.
struct PrintedLine {
    /// Blanks collapsed; cut after PrintedPages::longestLine units.
    QString text;
    /// In upright space: the page as a reader holds it, origin lower left, y up.
    Rect bounds;
    /// The size that most of the line is set in, and the largest one, in points.
    double size = 0;
    double largestSize = 0;
    /// Its first character, and all of it.
    bool beginsStyled = false;
    bool isBold = false;

    double top() const { return bounds.maxY(); }
    double bottom() const { return bounds.minY(); }
    double middle() const { return bounds.center().y; }
};

} // namespace Tavrin
