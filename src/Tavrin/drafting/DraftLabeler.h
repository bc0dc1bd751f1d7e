// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QSet>

#include <vector>

#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/drafting/SiblingGroups.h>

namespace Tavrin
{

/// Gives each heading its label and its index.
///
/// The label is the printed number ("4.2.1", "A.3"), else a word made of the title. The index is
/// a list of integers that sorts in document order, so letters can't stand in it: appendices
/// go on counting where the numbered chapters end, and their labels tell the letter. Where the
/// chapters of each part begin at 1 anew, part and chapter together are the number. Headings
/// without a number sort behind the numbered one before them: [4, 2, 0, 1] follows 4.2.
class DraftLabeler
{
public:
    explicit DraftLabeler(std::vector<DraftItem> &items);

    void label();

    /// The text, or where a label already is that, the text with a suffix; taken from then on.
    QString uniqueLabel(const QString &wanted);

    /// The index of something that is numbered within the chapters, once those are labelled: a
    /// figure of appendix A has the chapter that the appendix has.
    std::vector<int> indexOf(const HeadingNumber &number) const;

    /// Labels that had to be told apart by a suffix.
    int duplicates() const { return m_duplicates; }

private:
    void findLastChapter();
    void labelItem(size_t index);
    std::vector<int> indexFromNumber(const DraftItem &item) const;
    std::vector<int> indexWithoutNumber(size_t index);

    std::vector<DraftItem> &m_items;
    SiblingGroups m_groups;
    /// The part that the chapters belong to, where they are counted anew in each.
    bool m_isPartNumbered = false;
    int m_part = 0;
    QString m_partText;
    int m_lastChapter = 0;
    /// Of the items at the top.
    size_t m_lastNumbered = 0;
    /// For each item: the last numbered child, and how many unnumbered ones follow it.
    std::vector<std::vector<int>> m_lastIndex;
    std::vector<int> m_unnumbered;
    QSet<QString> m_labels;
    /// The suffix given last, so that a title that repeats costs no search.
    QHash<QString, int> m_nextSuffix;
    int m_duplicates = 0;
};

} // namespace Tavrin
