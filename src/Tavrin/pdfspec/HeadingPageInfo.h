// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// A printed heading. Found by the title near the entry's place.
struct SectionHeading {
    /// From 0.
    int page = -1;
    /// In the text of the page.
    TextRange range;
    /// Where what belongs to the heading begins: "Chapter 3" may stand above its title.
    qsizetype start = 0;
    /// With single blanks.
    QString flatText;
};

/// Where the text of a section begins and ends.
struct HeadingPageInfo {
    /// The pages of the two headings, -1 while unknown. A section that nothing follows has no
    /// second one and ends with the page of the first.
    int headingPageIndex = -1;
    int nextHeadingPageIndex = -1;
    /// The headings as the pages have them, with single blanks.
    QString headingText;
    QString nextHeadingText;
    /// Their ranges in the texts of their pages. The second begins with what is printed above its
    /// title and belongs to it, such as "Chapter 3". It is empty where the next heading was not
    /// found: then the text ends at the place of the next entry.
    TextRange headingRange = TextRange::notFound();
    TextRange nextHeadingRange = TextRange::notFound();
};

} // namespace Tavrin
