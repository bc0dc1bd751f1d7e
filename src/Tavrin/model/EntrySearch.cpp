// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/EntrySearch.h>

#include <Tavrin/model/EntryText.h>
#include <Tavrin/model/Specification.h>
#include <Tavrin/platform/CharacterSet.h>

#include <QHash>

#include <algorithm>
#include <cmath>

namespace Tavrin::EntrySearch
{

namespace
{

bool startsWord(const QString &text, qsizetype at)
{
    return at == 0 || CharacterSet::isWhiteSpaceOrNewline(text[at - 1]) ||
           CharacterSet::isWhiteSpaceOrNewline(text[at]);
}

QStringList searchTerms(const QString &text, SearchOptions options)
{
    if (options.testFlag(SearchOption::MatchEntireString))
        return {text};
    QStringList terms;
    auto from = text.begin();
    while (from != text.end()) {
        const auto to = std::find_if(from, text.end(), CharacterSet::isWhiteSpaceOrNewline);
        if (to != from)
            terms += QString(from, to - from);
        from = to == text.end() ? to : to + 1;
    }
    return terms;
}

struct Hit {
    EntryPtr entry;
    float relevance = 0;
};

bool isShallower(const SpecificationEntry &a, const SpecificationEntry &b)
{
    if (a.index().size() != b.index().size())
        return a.index().size() < b.index().size();
    return a.index() < b.index();
}

bool isBetter(const Hit &a, const Hit &b)
{
    const bool tie = std::abs(a.relevance / b.relevance - 1) <= 0.001F;
    return tie ? isShallower(*a.entry, *b.entry) : a.relevance > b.relevance;
}

/// Stable merge sort. A tie within a tolerance is no transitive relation, so this order is none
/// that the standard sorts may be given; here it only decides which of two heads goes first.
void sortByRelevance(std::vector<Hit> &hits)
{
    std::vector<Hit> merged(hits.size());
    for (std::size_t width = 1; width < hits.size(); width *= 2) {
        for (std::size_t from = 0; from < hits.size(); from += 2 * width) {
            std::size_t left = from;
            const std::size_t middle = std::min(from + width, hits.size());
            std::size_t right = middle;
            const std::size_t end = std::min(from + 2 * width, hits.size());
            for (std::size_t to = from; to < end; ++to) {
                const bool takeRight =
                    left == middle || (right < end && isBetter(hits[right], hits[left]));
                merged[to] = std::move(hits[takeRight ? right++ : left++]);
            }
        }
        hits.swap(merged);
    }
}

/// The texts of one entry that a search reads, folded once for all terms. Kept for one entry after
/// the other, so that their memory is taken once.
class ComparedItems
{
public:
    explicit ComparedItems(SearchOptions options)
        : m_foldsCase(!options.testFlag(SearchOption::CaseSensitive))
    {
    }

    void assign(const QStringList &items)
    {
        m_items.resize(static_cast<std::size_t>(items.size()), QString());
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            const QString &item = items[static_cast<qsizetype>(i)];
            if (m_foldsCase)
                EntryText::foldInto(*m_items[i], item);
            else
                *m_items[i] = item;
        }
    }

    /// The sum of what `relevance` gives for each text. One that stands twice in a row, as titles
    /// do, is looked at once.
    template <class Relevance>
    float sum(Relevance relevanceOf) const
    {
        float total = 0;
        float latest = 0;
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (i == 0 || m_items[i] != m_items[i - 1])
                latest = relevanceOf(m_items[i]);
            total += latest;
        }
        return total;
    }

private:
    bool m_foldsCase;
    /// Wrapped as searchRelevance() takes them.
    std::vector<std::optional<QString>> m_items;
};

/// Nothing if one of the terms does not match.
std::optional<float> totalScore(const Specification &specification, const SpecificationEntry &entry,
                                const ComparedItems &items, const QStringList &terms,
                                SearchOptions options)
{
    float total = 0;
    for (const QString &term : terms) {
        const float score = items.sum([&](const std::optional<QString> &item) {
            return specification.searchRelevance(entry, term, options, item);
        });
        if (score == 0)
            return std::nullopt;
        total += score;
    }
    return total / static_cast<float>(entry.index().size());
}

/// By how many words an entry's text shares with a query, weighed by the length of each.
float similarity(const SpecificationEntry &entry, const QHash<QString, int> &query)
{
    const QString text = entry.searchableItems().join(u'\n').toLower();
    const auto length = static_cast<float>(EntryText::characterCount(text));
    float sum = 0;
    for (const auto &[word, count] : EntryText::simpleWordFrequencies(text)) {
        const int product = query.value(word) * count;
        if (product != 0) {
            const auto weight = std::log(static_cast<float>(EntryText::characterCount(word)));
            sum += static_cast<float>(product) * weight / length;
        }
    }
    return sum;
}

std::vector<EntryPtr> entriesOf(const std::vector<Hit> &hits)
{
    std::vector<EntryPtr> entries;
    entries.reserve(hits.size());
    for (const Hit &hit : hits)
        entries.push_back(hit.entry);
    return entries;
}

} // namespace

float relevance(const QString &term, const QString &text)
{
    const auto share = [&](float divisor) {
        return static_cast<float>(EntryText::characterCount(term)) /
               (divisor * static_cast<float>(EntryText::characterCount(text)));
    };
    // An empty term occurs nowhere, and most texts lack the first character already.
    const qsizetype first = term.isEmpty() ? -1 : text.indexOf(term.front());
    if (first < 0)
        return 0;
    if (const qsizetype at = text.indexOf(term, first); at >= 0)
        return share(startsWord(text, at) ? 1 : 2);
    return EntryText::containsWithoutSeparators(text, term) ? share(3) : 0;
}

std::vector<EntryPtr> search(const Specification &specification, const QString &text,
                             SearchOptions options)
{
    QStringList terms = searchTerms(text, options);
    if (!options.testFlag(SearchOption::CaseSensitive)) {
        for (QString &term : terms)
            term = term.toLower();
    }
    ComparedItems items(options);
    std::vector<Hit> hits;
    for (const EntryPtr &entry : specification.entries()) {
        if (terms.isEmpty()) {
            hits.push_back({entry, 0});
            continue;
        }
        items.assign(entry->searchableItems());
        if (const auto total = totalScore(specification, *entry, items, terms, options))
            hits.push_back({entry, *total});
    }
    if (!terms.isEmpty())
        sortByRelevance(hits);
    return entriesOf(hits);
}

std::vector<EntryPtr> mostSimilar(const Specification &specification, const QString &text,
                                  int resultCount)
{
    QHash<QString, int> query;
    for (const auto &[word, count] : EntryText::simpleWordFrequencies(text.toLower()))
        query.insert(word, count);
    std::vector<Hit> hits;
    for (const EntryPtr &entry : specification.entries())
        hits.push_back({entry, similarity(*entry, query)});
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit &a, const Hit &b) { return a.relevance > b.relevance; });
    hits.resize(std::min(hits.size(), static_cast<std::size_t>(std::max(resultCount, 0))));
    return entriesOf(hits);
}

} // namespace Tavrin::EntrySearch
