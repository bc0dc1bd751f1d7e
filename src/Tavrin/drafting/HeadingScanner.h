// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>

#include <map>
#include <tuple>
#include <vector>

#include <Tavrin/drafting/HeadingFinder.h>

namespace Tavrin
{

/// Finds the numbered headings that stand on the pages of a document, beyond those already known.
///
/// A line may be a heading if it begins with a number and is styled or larger than the body. Of
/// these the ones are taken whose numbers ascend together with the known headings', whose parent
/// stands before them and whose siblings are there, most of them, from the first on. So numbered
/// lists, table rows, quoted headings and running heads drop out. Reads every page; n log n in
/// the lines that begin with a number.
class HeadingScanner
{
public:
    HeadingScanner(const PrintedPages &pages, const BodyColumn &column,
                   const HeadingFinder &finder);

    /// The known headings and the new ones, in document order. Pages in `skipped`, lists of
    /// contents, are not looked at.
    std::vector<DraftItem> merge(const std::vector<DraftItem> &known, const QSet<int> &skipped);

private:
    /// Level, size in half points, bold: what headings of one level have in common.
    using Style = std::tuple<size_t, int, bool>;
    struct Candidate {
        DraftItem item;
        Style style;
        /// Of the known headings; -1 for a new one.
        int known = -1;
        std::vector<int> ranks;
    };

    void scanPage(int page);
    std::optional<Candidate> candidateAt(int page, int line) const;
    void readTitle(Candidate &candidate, int page, int line, qsizetype begin) const;
    bool goesOn(int page, int line) const;
    bool isHeadingStyle(const PrintedLine &line, const HeadingNumber &number) const;
    void addKnown(const std::vector<DraftItem> &known);
    void select();
    void selectBetween(size_t begin, size_t end);
    void dropOrphans();
    std::vector<DraftItem> inserted(const std::vector<DraftItem> &known);

    const PrintedPages &m_pages;
    const BodyColumn &m_column;
    const HeadingFinder &m_finder;
    std::vector<Candidate> m_candidates;
    /// Those of the candidates that were taken.
    std::vector<bool> m_taken;
    bool m_hasKnownChapters = false;
};

} // namespace Tavrin
