// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QSet>

#include <vector>

#include <Tavrin/drafting/BodyColumnMeasurer.h>
#include <Tavrin/drafting/CaptionNumber.h>

namespace Tavrin
{

/// A caption that stands on a page.
struct DraftCaption {
    CaptionNumber number;
    QString title;
    int page = 0;
    /// The upper left corner of its first line, in upright space.
    Point corner;
};

/// Finds the captions of figures and tables on the pages.
///
/// A line that begins with "Figure" or "Table" and a number may be a caption, a sentence that goes
/// on from the line above or begins a paragraph, or a line of a list. Captions of one document look
/// alike, have each number once, and ascend.
class CaptionScanner
{
public:
    CaptionScanner(const PrintedPages &pages, const BodyColumn &column);

    /// In document order, figures and tables mixed. Pages to skip are those of lists.
    std::vector<DraftCaption> scan(const QSet<int> &skipped);

private:
    struct Candidate {
        DraftCaption caption;
        /// How captions of the document are told from other lines: the word as printed, the
        /// separator, size and weight.
        QString style;
        int score = 0;
    };

    void scanPage(int page);
    std::optional<Candidate> candidate(int page, std::size_t index) const;
    const PrintedLine *lineAbove(const std::vector<PrintedLine> &lines, std::size_t index) const;
    bool continuesParagraph(const std::vector<PrintedLine> &lines, std::size_t index) const;
    bool isWrapped(const std::vector<PrintedLine> &lines, std::size_t first,
                   std::size_t last) const;
    QString title(const std::vector<PrintedLine> &lines, std::size_t first, qsizetype start) const;
    static double columnRight(const std::vector<PrintedLine> &lines, const PrintedLine &line);
    void weighStyles();
    std::vector<DraftCaption> select(SpecificationEntryType type) const;

    const PrintedPages &m_pages;
    const BodyColumn &m_column;
    std::vector<Candidate> m_candidates;
};

} // namespace Tavrin
