// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>

#include <vector>

#include <Tavrin/drafting/BodyColumnMeasurer.h>
#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/drafting/PrintedPages.h>

namespace Tavrin
{

/// Finds headings by their print alone, in a document that neither numbers nor lists them: lines
/// larger than the body, and short bold lines of the body's size. Each size is a level, the
/// largest one that occurs more than once the first; at most three levels. Linear in the lines.
class StyledHeadingScanner
{
public:
    StyledHeadingScanner(const PrintedPages &pages, const BodyColumn &column);

    /// In document order, on all pages but the skipped ones.
    std::vector<DraftItem> scan(const QSet<int> &skipped) const;

private:
    bool isHeading(const PrintedLine &line) const;
    void scanPage(int page, std::vector<DraftItem> &items, std::vector<double> &sizes) const;

    const PrintedPages &m_pages;
    const BodyColumn &m_column;
};

} // namespace Tavrin
