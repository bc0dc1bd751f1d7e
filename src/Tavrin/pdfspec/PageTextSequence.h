// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <Tavrin/platform/StyledText.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// Where a stretch of filtered text came from.
struct RangeMapping {
    /// In the filtered text.
    TextRange filtered;
    /// In the page's own text.
    TextRange page;

    friend bool operator==(const RangeMapping &, const RangeMapping &) = default;
};

/// The body of a page: its lines without running heads, figures and tables, in reading order, a
/// line feed between them. Immutable once made. PDFSpecification::filteredPage makes it.
struct FilteredPage {
    StyledText text;
    /// In ascending order of location.
    std::vector<RangeMapping> mappings;

    /// Where a position of the page's text lies in the filtered text; that of the next kept line
    /// if its own was left out, and the end if none follows.
    qsizetype filteredPosition(qsizetype pagePosition) const;
};

/// The bodies of a range of pages, by page index.
using PageTextSequence = std::map<int, std::shared_ptr<const FilteredPage>>;

} // namespace Tavrin
