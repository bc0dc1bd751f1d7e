// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <optional>
#include <vector>

#include <Tavrin/drafting/PrintedPages.h>

namespace Tavrin
{

/// Finds at one edge of the pages what repeats there: running heads, or page numbers and feet.
///
/// A height is a running head's if lines stand there on several pages and most of them say the
/// same but for their digits, or count the pages. Body text that begins at one height on every
/// page does neither.
class RunningHeadFinder
{
public:
    enum class Edge { Top, Bottom };

    /// Where body text ends and what repeats begins, as distances from the edge in points.
    struct Border {
        /// The inner side of what repeats.
        double head = 0;
        /// The outer side of all other lines.
        double body = 0;
        /// Pages of the sample whose other lines reach beyond the inner side.
        int exceptions = 0;
    };

    RunningHeadFinder(const PrintedPages &pages, std::vector<int> sample, Edge edge);

    /// Nothing if nothing repeats at this edge.
    std::optional<Border> find();

private:
    struct Row {
        int page = 0;
        double outer = 0;
        double inner = 0;
        /// What stands side by side, and the same without its digits.
        QStringList texts;
        QStringList patterns;
        std::optional<int> numberOffset;
        bool isNumberAlone = false;
        bool repeats = false;
    };
    enum class Judgement { Head, Text };
    using Rows = std::vector<Row *>;

    void collectRows(int page);
    void describe(Row &row) const;
    /// `reach` is how far in a second line of a head already found can stand.
    Judgement judgeHeight(const Rows &rows, std::optional<double> reach);
    bool countsPages(const Rows &rows);
    void markEnclosed();
    Border measure() const;

    const PrintedPages &m_pages;
    std::vector<int> m_sample;
    Edge m_edge;
    std::vector<Row> m_rows;
};

} // namespace Tavrin
