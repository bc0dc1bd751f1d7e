// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/KeywordRanking.h>

#include <algorithm>
#include <cmath>
#include <set>

#include <Tavrin/enhance/ScoreOrder.h>
#include <Tavrin/model/EntryText.h>

namespace Tavrin
{

namespace
{

/// The number of pieces between blanks and tabs.
int wordCount(const QString &term)
{
    int words = 0;
    bool isInside = false;
    for (const QChar character : term) {
        const bool parts = character == u' ' || character == u'\t';
        words += !parts && !isInside;
        isInside = !parts;
    }
    return words;
}

/// Of each pair of terms of which one holds the other, the one that stands further down.
void removeContained(std::vector<WeightedKeyword> &keywords)
{
    std::set<std::size_t, std::greater<>> marked;
    for (std::size_t index = 0; index < keywords.size(); ++index) {
        const QString &text = keywords[index].text;
        const auto holder = std::find_if(keywords.begin(), keywords.end(), [&](const auto &other) {
            return other.text != text && other.text.contains(text);
        });
        if (holder != keywords.end())
            marked.insert(std::max(index, static_cast<std::size_t>(holder - keywords.begin())));
    }
    for (const std::size_t index : marked)
        keywords.erase(keywords.begin() + static_cast<std::ptrdiff_t>(index));
}

} // namespace

std::vector<WeightedKeyword> rankKeywords(const TermCounts &counts, const TermCounts &totals,
                                          const QString &title, int maximumCount)
{
    const QString foldedTitle = title.toLower();
    std::vector<WeightedKeyword> keywords;
    for (const auto &[term, count] : counts) {
        const int words = wordCount(term);
        if ((count <= 1 && words != 1) || term == foldedTitle)
            continue;
        const auto length = static_cast<double>(EntryText::characterCount(term));
        keywords.push_back({term, std::log(length) * count / (words * totals.value(term))});
    }
    std::stable_sort(keywords.begin(), keywords.end(), byScore);
    keywords.resize(std::min(keywords.size(), static_cast<std::size_t>(std::max(maximumCount, 0))));
    removeContained(keywords);
    return keywords;
}

} // namespace Tavrin
