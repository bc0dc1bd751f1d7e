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
///
/// Destinations, selections and rectangles that a host gets from this library can be handed back as
/// they are. To place one in a view of its own, a host turns it upright and then y downward:
///
///     const Rect upright = page.geometry().toUpright(bounds);
///     const double top = page.geometry().uprightSize().height - upright.maxY();
struct TAVRIN_CORE_EXPORT PageGeometry {
    Rect mediaBox;
    /// Within the media box.
    Rect cropBox;
    /// Clockwise turn for display: 0, 90, 180 or 270.
    int rotation = 0;

    /// One of the two, in page space.
    const Rect &box(PDFBox box) const { return box == PDFBox::Media ? mediaBox : cropBox; }

    /// Width and height of the crop box as displayed.
    Size uprightSize() const;

    /// From upright to page space.
    Point toPage(Point upright) const;
    /// From page to upright space, the inverse of toPage().
    Point toUpright(Point page) const;
    /// The same for a rectangle, whose sides stay sides. A null one stays null.
    Rect toPage(const Rect &upright) const;
    /// The same for a rectangle, whose sides stay sides. A null one stays null.
    Rect toUpright(const Rect &page) const;
};

} // namespace Tavrin
