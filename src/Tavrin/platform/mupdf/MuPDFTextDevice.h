// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mupdf/fitz.h>

namespace Tavrin
{

/// Where a page prints something other than text: a box around each image and each stretch of
/// drawing, in device space. What is drawn one piece after another, each touching the last, is
/// one stretch. White is not told, nor what lies outside the clip.
struct DrawnBoxes {
    static constexpr int limit = 1024;

    fz_rect boxes[limit];
    int count = 0;

    /// Beyond the limit, the last box grows.
    void add(fz_rect box);
};

/// A device that fills structured text and gives up on a page that asks for more than any page
/// prints: forms that draw forms can make a small file run for years. It sets the cookie to
/// abort, and what was read until then stands. What else is printed goes to `drawn`.
///
/// An engine call: fails as those do, so only for use inside a call group.
fz_device *newBoundedTextDevice(fz_context *context, fz_stext_page *page, DrawnBoxes *drawn,
                                fz_cookie *cookie);

} // namespace Tavrin
