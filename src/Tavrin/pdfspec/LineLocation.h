// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/platform/Geometry.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// Where a line of an entry's text stands in the PDF. The n-th of an entry's LineLocations is that
/// of the n-th line of its text.
struct LineLocation {
    /// In the entry's text, without the line feed.
    TextRange range;
    /// From 0.
    int page = 0;
    /// In page space.
    Rect bounds;

    friend bool operator==(const LineLocation &, const LineLocation &) = default;
};

/// In the order of the text, which is that of reading.
using LineLocations = std::vector<LineLocation>;

} // namespace Tavrin
