// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/Geometry.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// A visual line: one run of text on one baseline, not broken by a column gap.
struct PageTextLine {
    /// In the page's text; without the line feed behind it.
    TextRange range;
    /// In page space.
    Rect bounds;
};

} // namespace Tavrin
