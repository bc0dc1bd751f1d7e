// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/PageTextLine.h>
#include <Tavrin/textlayout/BoxTree.h>

namespace Tavrin
{

/// What the glyphs of a page make: its text, and where each character of it is.
struct LaidOutText {
    static constexpr size_t unitsPerBox = 32;

    QString string;
    StyledText styledText;
    std::vector<PageTextLine> lines;
    /// Where something other than text is printed, in upright space.
    std::vector<Rect> drawings;
    PageGeometry geometry;
    /// In upright space, one for each unit of the text; empty for a line feed.
    std::vector<CellBox> boxes;
    /// Around each stretch of `unitsPerBox` units, and around each line.
    BoxTree unitTree;
    BoxTree lineTree;
};

} // namespace Tavrin
