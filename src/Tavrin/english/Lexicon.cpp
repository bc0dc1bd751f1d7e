// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/Lexicon.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

#include <Tavrin/english/LexiconCorrections.h>
#include <Tavrin/english/LineReader.h>

namespace Tavrin::English
{

namespace
{

constexpr std::size_t expectedLexiconWords = 36'000;
/// A word that was counted no oftener teaches what endings say.
constexpr float rareCount = 10;
/// The share of a tag that the dictionary alone knows of, and as how many occurrences it counts at
/// most: a word that was met a thousand times without it won't have it.
constexpr float dictionaryShare = 0.01F;
constexpr float dictionaryCount = 0.3F;
/// What the ending's opinion counts for beside a word's own occurrences.
constexpr float endingWeight = 0.3F;
/// The same for participles: whatever was met as an adjective in "ed" is one of a verb too.
constexpr float participleWeight = 2;
/// Tags rarer than this share are left out.
constexpr float smallestShare = 0.0015F;

/// Calls back for each "(tag logarithm)" of a line.
template <typename Callback>
void forEachTag(std::string_view list, Callback &&callback)
{
    for (std::size_t open = list.find('('); open != std::string_view::npos;
         open = list.find('(', open + 1)) {
        const std::size_t blank = list.find(' ', open);
        const std::size_t close = list.find(')', open);
        if (blank == std::string_view::npos || close == std::string_view::npos || blank > close)
            continue;
        const auto tag = pennTag(list.substr(open + 1, blank - open - 1));
        double logarithm = 0;
        const auto read = std::from_chars(list.data() + blank + 1, list.data() + close, logarithm);
        if (tag && read.ec == std::errc())
            callback(*tag, logarithm);
    }
}

float total(const std::array<float, pennTagCount> &counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0.0F);
}

} // namespace

Lexicon::Lexicon(QByteArrayView file, const TagTransitions &transitions,
                 const Dictionary &dictionary)
    : m_words(expectedLexiconWords)
{
    std::vector<Counts> counts = readCounts(file, transitions);
    m_hasCounts = std::any_of(counts.begin(), counts.end(),
                              [](const Counts &word) { return total(word) > 0; });
    if (!m_hasCounts)
        return;
    learnEndings(counts);
    applyCorrections(counts);
    m_entries.reserve(counts.size());
    m_odds.reserve(counts.size() * 2);
    for (std::size_t number = 0; number < counts.size(); ++number) {
        if (!m_functionWords[number])
            addDictionaryTags(m_words.word(static_cast<int>(number)), counts[number], dictionary);
        addEntry(counts[number], transitions);
    }
}

std::vector<Lexicon::Counts> Lexicon::readCounts(QByteArrayView file,
                                                 const TagTransitions &transitions)
{
    std::vector<Counts> all;
    forEachLine(file, [&](std::string_view line) {
        const std::size_t end = line.find("\" (", 2);
        if (!line.starts_with("(\"") || end == std::string_view::npos)
            return;
        const auto number = static_cast<std::size_t>(m_words.insert(line.substr(2, end - 2)));
        all.resize(std::max(all.size(), number + 1));
        forEachTag(line.substr(end + 3), [&](PennTag tag, double logarithm) {
            const double count = std::exp(std::min(logarithm, 0.0)) * transitions.count(tag);
            if (tag != PennTag::Ambiguous && tag != PennTag::Final)
                all[number][slot(tag)] += static_cast<float>(count);
        });
    });
    return all;
}

void Lexicon::learnEndings(const std::vector<Counts> &counts)
{
    for (std::size_t number = 0; number < counts.size(); ++number) {
        if (total(counts[number]) > rareCount)
            continue;
        const std::string_view word = m_words.word(static_cast<int>(number));
        for (const PennTag tag : EndingModel::openTags) {
            if (const float count = counts[number][slot(tag)]; count > 0)
                m_endings.learn(word, tag, count);
        }
    }
    m_endings.finish();
}

void Lexicon::applyCorrections(std::vector<Counts> &counts)
{
    m_functionWords.resize(counts.size());
    forEachCorrection([&](const LexiconCorrection &correction) {
        const auto number = static_cast<std::size_t>(m_words.insert(correction.word));
        counts.resize(std::max(counts.size(), number + 1));
        m_functionWords.resize(counts.size());
        m_functionWords[number] = correction.isFunctionWord;
        correction.apply(counts[number]);
    });
}

/// Tags that the dictionary adds, and what the ending says of a word that was hardly counted.
void Lexicon::addDictionaryTags(std::string_view word, Counts &counts,
                                const Dictionary &dictionary) const
{
    const float count = total(counts);
    const PennTagSet known = dictionary.tags(word);
    const bool proper = counts[slot(PennTag::NNP)] + counts[slot(PennTag::NNPS)] > count / 2;
    if (known.isEmpty())
        return;
    // Of a name that is a common word too, nothing was counted of the word.
    const float weight = proper ? 1 : endingWeight;
    const auto &ending = m_endings.probabilities(word, EndingModel::Spelling::Lowercase);
    for (std::size_t index = 0; index < ending.size(); ++index) {
        const PennTag tag = EndingModel::openTags[index];
        float &tagCount = counts[slot(tag)];
        if (!known.contains(tag))
            continue;
        if (tagCount == 0)
            tagCount += std::min(dictionaryShare * count, dictionaryCount);
        tagCount += (tag == PennTag::VBN ? participleWeight : weight) * ending[index];
    }
}

void Lexicon::addEntry(const Counts &counts, const TagTransitions &transitions)
{
    const float count = total(counts);
    Entry entry;
    entry.firstOdds = static_cast<quint32>(m_odds.size());
    entry.isFunctionWord = m_functionWords[m_entries.size()];
    entry.count = count;
    for (std::size_t tag = 0; tag < counts.size(); ++tag) {
        if (counts[tag] <= smallestShare * count)
            continue;
        const double tagTotal = std::max(1.0, transitions.count(static_cast<PennTag>(tag)));
        m_odds.push_back({static_cast<PennTag>(tag),
                          static_cast<float>(std::log(double(counts[tag]) / tagTotal))});
    }
    entry.oddsCount = static_cast<quint8>(m_odds.size() - entry.firstOdds);
    m_entries.push_back(entry);
}

std::optional<Lexicon::Word> Lexicon::find(std::string_view word) const
{
    const int number = m_words.find(word);
    if (number == WordTable::absent)
        return std::nullopt;
    const Entry &entry = m_entries[static_cast<std::size_t>(number)];
    if (entry.oddsCount == 0)
        return std::nullopt;
    return Word{std::span(m_odds).subspan(entry.firstOdds, entry.oddsCount), entry.count,
                entry.isFunctionWord};
}

float Lexicon::count(std::string_view word) const
{
    const int number = m_words.find(word);
    return number == WordTable::absent ? 0 : m_entries[static_cast<std::size_t>(number)].count;
}

} // namespace Tavrin::English
