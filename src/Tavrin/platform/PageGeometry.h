// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// The boxes of a page (ISO 32000-1, 14.11.2). A page without a crop box shows its media box.
enum class PDFBox { Media, Crop };

/// The frame of a page, and the way between the two spaces in which places on it are told.
///
/// *Page space* is the file's own: origin lower left, y up, before /Rotate. Destinations,
/// rectangles and everything a host sees are in it. *Upright space* is the page as a reader holds
/// it: the crop box after /Rotate, its lower left corner at (0, 0), y up. Lines of text are
/// found there. Both count in points.
struct TAVRIN_CORE_EXPORT PageGeometry {
    Rect mediaBox;
    /// Within the media box.
    Rect cropBox;
    /// Clockwise turn for display: 0, 90, 180 or 270.
    int rotation = 0;

    const Rect &box(PDFBox box) const { return box == PDFBox::Media ? mediaBox : cropBox; }

    /// Width and height of the crop box as displayed.
    Size uprightSize() const;

    Point toPage(Point upright) const;
    Point toUpright(Point page) const;
    Rect toPage(const Rect &upright) const;
    Rect toUpright(const Rect &page) const;
};

} // namespace Tavrin
