// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <vector>

#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/drafting/SiblingGroups.h>

namespace Tavrin
{

/// Decides on the numbers of a document's headings from what stands around them.
///
/// Numbers that are printed stay. One that a title merely begins with ("A First Impression",
/// "64 bit support") is taken back. What neither outline nor page says is concluded from the
/// sections below or the neighbours, and counted only where nothing of that level is numbered.
/// Linear in the items.
class NumberResolver
{
public:
    explicit NumberResolver(std::vector<DraftItem> &items);

    /// Before the headings are looked up: drops what only looks like a number.
    void dropFalseNumbers();

    /// After it: parts, concluded and counted numbers.
    void complete();

    /// How many numbers complete() counted.
    int countedNumbers() const { return m_counted; }

private:
    /// For each item the one before and behind it on its level, or -1.
    struct Neighbours {
        std::vector<int> before;
        std::vector<int> after;
    };

    DraftItem &item(int index) { return m_items[static_cast<size_t>(index)]; }
    Neighbours neighbours() const;
    bool isConfirmed(size_t index, const Neighbours &neighbours) const;
    void dropNumber(DraftItem &item) const;
    /// "I" and "V" are letters, unless a neighbour is "II" or "IV".
    void markRoman();
    void markParts();
    void takeFromChildren();
    /// "A" below "III" is cited as "III.A".
    void completeNumbers();
    void fillGaps(const std::vector<int> &siblings);
    void count(const std::vector<int> &siblings, const DraftItem *parent);
    bool isLevelNumbered(int depth) const;
    void
    forEachGroup(const std::function<void(const std::vector<int> &, const DraftItem *)> &visit);

    std::vector<DraftItem> &m_items;
    SiblingGroups m_groups;
    std::vector<bool> m_numberedLevels;
    int m_counted = 0;
};

} // namespace Tavrin
