// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QSet>

#include <optional>
#include <utility>
#include <vector>

#include <Tavrin/drafting/BodyColumnMeasurer.h>
#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/drafting/PrintedPages.h>

namespace Tavrin
{

/// Finds the printed heading of an item near the place that an outline or a list of contents
/// gives: on that page below or slightly above the place, on the next page, or the one before.
///
/// A heading can run over several lines, carry its number in front or on lines of its own above,
/// and differ from the outline in case, quotes, ligatures and dashes. Each line is given to one
/// item alone. Costs time in the lines of three pages for an item; over all items no more than a
/// fixed number of comparisons, after which nothing more is found.
class HeadingFinder
{
public:
    HeadingFinder(const PrintedPages &pages, const BodyColumn &column);

    /// Looks up the item and fills in its place, title and printed number. False, and the item
    /// unchanged, if the page prints no such heading.
    bool find(DraftItem &item);

    /// Looks on the pages behind the item's own, through the last one, for a heading in print that
    /// stands out: some destinations are left behind pages ago.
    bool findLater(DraftItem &item, int lastPage);

    /// The number on a line of its own above a heading's first line, and the line where the
    /// heading begins then.
    struct NumberAbove {
        HeadingNumber number;
        int firstLine = 0;
    };
    std::optional<NumberAbove> numberAbove(int page, int line) const;

    /// Whether the next line goes on with the heading: close below, and set in the same size.
    bool continues(int page, int line) const;

    bool isClaimed(int page, int line) const { return m_claimed.contains({page, line}); }

private:
    struct Match {
        int page = -1;
        int firstLine = 0;
        int titleLine = 0;
        int lastLine = 0;
        double score = 0;
        bool isWhole = false;
        QString title;
        std::optional<HeadingNumber> number;
    };
    struct Wanted {
        int page = -1;
        std::optional<Point> hint;
        /// With the number that the label seems to hold, and without it.
        QStringList keys;
        std::optional<HeadingNumber> number;
        /// How many components its number should have.
        qsizetype level = 1;
    };
    struct LineFacts {
        QString key;
        QString keyBehindNumber;
        std::optional<HeadingNumber> number;
    };

    Wanted wantedFrom(const DraftItem &item) const;
    const std::vector<LineFacts> &facts(int page) const;
    int pageAfter(int page) const;
    bool isProminent(const Match &match) const;
    void matchPage(const Wanted &wanted, int page, std::optional<Match> &best) const;
    std::optional<Match> matchText(const QString &key, int page, int line,
                                   const QString &begin) const;
    double score(const Wanted &wanted, const Match &match) const;
    double placeScore(const Wanted &wanted, const Match &match) const;
    QString titleOf(const Match &match) const;
    void take(DraftItem &item, const Match &match);

    const PrintedPages &m_pages;
    const BodyColumn &m_column;
    QSet<std::pair<int, int>> m_claimed;
    mutable QHash<int, std::vector<LineFacts>> m_facts;
    mutable qint64 m_comparisonsLeft;
};

} // namespace Tavrin
