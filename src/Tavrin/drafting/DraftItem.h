// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include <Tavrin/drafting/HeadingNumber.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// A heading on its way into a draft: what the outline, the contents or a page says of it.
struct DraftItem {
    /// Where the number comes from.
    enum class Source { None, Outline, Print, Implied, Counted };

    /// As the outline has it, number included, and without it. After the heading was found, the
    /// title is that of the page.
    QString label;
    QString title;
    /// 0 for chapters.
    int depth = 0;
    std::optional<HeadingNumber> number;
    Source source = Source::None;
    /// The heading holds a part's number, above the chapters.
    bool isPart = false;

    /// Where to look; page -1 if nothing tells. The point is in upright space; absent if only the
    /// page is known.
    int page = -1;
    std::optional<Point> hint;

    /// Where the heading stands: the upper left corner of its first line, in upright space.
    bool isFound = false;
    Point corner;
    /// Its lines on the page, so that no two headings take the same.
    int firstLine = -1;

    /// Filled by the numbering.
    std::vector<int> index;
    QString printedLabel;
};

} // namespace Tavrin
