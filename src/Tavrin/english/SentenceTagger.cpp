// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/SentenceTagger.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace Tavrin::English
{

namespace
{

/// Logarithms of what a capital, or its absence, is worth beside the counts, which were made
/// without regard to case.
const float properInLowercase = std::log(0.005F);
const float commonInCapitals = std::log(0.2F);
const float commonInTitle = std::log(0.5F);
/// The share of an unlisted name among a known word's capitalised occurrences.
constexpr float unlistedName = 0.02F;
const float unlistedNameInTitle = std::log(0.1F);
/// An unknown word's tag that the dictionary does not know of.
const float ruledOut = std::log(0.03F);
constexpr float leastProbability = 1e-4F;

/// "Italian", "French", "Chinese": adjectives that have a capital wherever they stand.
bool isOfAPeople(std::string_view word)
{
    static constexpr std::array<std::string_view, 11> endings = {
        "ian", "ean", "can", "ish", "ese", "ench", "utch", "aqi", "aeli", "amic", "erman"};
    return std::any_of(endings.begin(), endings.end(),
                       [word](std::string_view ending) { return word.ends_with(ending); });
}

bool isOrdinal(std::string_view word)
{
    return word.ends_with("st") || word.ends_with("nd") || word.ends_with("rd") ||
           word.ends_with("th");
}

} // namespace

SentenceTagger::SentenceTagger(const EnglishModel &model) : m_model(model)
{
    // A sentence begins as if a full stop stood before it.
    m_fullStop.add(PennTag::PUNC, 0);
    m_wordBeforeFullStop.add(PennTag::NN, 0);
}

void SentenceTagger::Candidates::add(PennTag tag, float logarithm)
{
    if (count < odds.size())
        odds[count++] = {tag, logarithm};
}

void SentenceTagger::tag(std::span<const WordForm> words, std::span<PennTag> tags)
{
    if (words.empty())
        return;
    const Setting set = setting(words);
    m_candidates.resize(std::max(m_candidates.size(), words.size()));
    m_back.resize(std::max(m_back.size(), words.size()));
    m_scores[pair(0, 0)] = 0;
    for (std::size_t index = 0; index < words.size(); ++index) {
        findCandidates(words[index], index > 0 ? &words[index - 1] : nullptr, set,
                       m_candidates[index]);
        advance(index);
    }
    readBack(tags);
}

bool SentenceTagger::isKnown(const WordForm &word) const
{
    return m_model.lexicon().count(word.folded()) > 0 ||
           !m_model.dictionary().tags(word.folded()).isEmpty();
}

SentenceTagger::Setting SentenceTagger::setting(std::span<const WordForm> words)
{
    constexpr std::ptrdiff_t fewestWords = 2;
    const auto count = [words](auto property) {
        return std::count_if(words.begin(), words.end(), property);
    };
    const auto letters =
        count([](const WordForm &word) { return word.isCapitalized() || word.isLowercase(); });
    if (letters < fewestWords)
        return Setting::Prose;
    if (count(std::mem_fn(&WordForm::isAllCapitals)) * 10 > letters * 7)
        return Setting::AllCapitals;
    return count(std::mem_fn(&WordForm::isCapitalized)) * 10 > letters * 6 ? Setting::TitleCase
                                                                           : Setting::Prose;
}

void SentenceTagger::findCandidates(const WordForm &word, const WordForm *before, Setting setting,
                                    Candidates &candidates) const
{
    candidates.count = 0;
    if (const auto told = tagBySpelling(word, setting)) {
        candidates.add(*told, 0);
        return;
    }
    // Behind a quote, a bracket, a colon or a number of a list, a sentence may begin.
    const bool isInside = before != nullptr && !before->isNumeral() &&
                          (!before->isSymbol() || before->folded() == ",");
    const bool capitalTells = setting != Setting::AllCapitals && word.isCapitalized() && isInside;
    if (const auto known = m_model.lexicon().find(word.folded()))
        addKnown(word, *known, capitalTells, setting, candidates);
    else
        addUnknown(word, capitalTells, setting, candidates);
}

/// Symbols, numbers, identifiers and addresses, which no dictionary lists.
std::optional<PennTag> SentenceTagger::tagBySpelling(const WordForm &word, Setting setting) const
{
    if (word.isSymbol() && word.folded() != "&")
        return PennTag::PUNC;
    if (word.isNumeral() || word.isMeasure() || word.isRomanNumeral())
        return PennTag::CD;
    if (word.isAddress())
        return PennTag::NNP;
    if (word.startsWithDigit() && !word.isHyphenated()) {
        if (word.folded().starts_with("0x"))
            return PennTag::CD;
        return isOrdinal(word.folded()) ? PennTag::JJ : PennTag::NN;
    }
    if (word.isIdentifier() || word.isInOtherScript())
        return PennTag::NN;
    if (!word.isAllCapitals() || setting == Setting::AllCapitals)
        return std::nullopt;
    const bool isAbbreviation =
        word.folded() == "us" || word.folded() == "it" || !m_model.lexicon().find(word.folded());
    return isAbbreviation ? std::optional(PennTag::NNP) : std::nullopt;
}

void SentenceTagger::addKnown(const WordForm &form, const Lexicon::Word &word, bool capitalTells,
                              Setting setting, Candidates &candidates) const
{
    bool hasProper = false;
    // A known word all in capitals is stressed rather than a name.
    const bool asName = capitalTells && !word.isFunctionWord && !form.isAllCapitals();
    for (TagOdds odds : word.odds) {
        const bool proper = isProper(odds.tag);
        hasProper = hasProper || proper;
        if (proper && form.isLowercase())
            odds.logarithm += properInLowercase;
        else if (!proper && asName && !(odds.tag == PennTag::JJ && isOfAPeople(form.folded())))
            odds.logarithm += setting == Setting::TitleCase ? commonInTitle : commonInCapitals;
        candidates.add(odds.tag, odds.logarithm);
    }
    if (!asName || hasProper)
        return;
    const double share =
        (unlistedName * double(word.count) + 0.5) / m_model.transitions().count(PennTag::NNP);
    candidates.add(PennTag::NNP, static_cast<float>(std::log(share)) +
                                     (setting == Setting::TitleCase ? unlistedNameInTitle : 0.0F));
}

void SentenceTagger::addUnknown(const WordForm &word, bool capitalTells, Setting setting,
                                Candidates &candidates) const
{
    using Spelling = EndingModel::Spelling;
    const bool asCapitalized = word.isCapitalized() && setting != Setting::AllCapitals;
    Spelling spelling = word.isHyphenated() ? Spelling::Hyphenated : Spelling::Lowercase;
    if (asCapitalized)
        spelling = Spelling::Capitalized;
    const auto &probabilities = m_model.lexicon().endings().probabilities(word.folded(), spelling);
    const PennTagSet possible = m_model.dictionary().tags(word.folded());
    const bool mustBeName = capitalTells && possible.isEmpty();
    for (std::size_t index = 0; index < probabilities.size(); ++index) {
        const PennTag tag = EndingModel::openTags[index];
        const bool proper = isProper(tag);
        if (probabilities[index] < leastProbability || (proper && !asCapitalized) ||
            (mustBeName && !proper && tag != PennTag::NN && tag != PennTag::NNS))
            continue;
        const double share = double(probabilities[index]) / m_model.transitions().count(tag);
        auto logarithm = static_cast<float>(std::log(share));
        if (!proper && !possible.isEmpty() && !possible.contains(tag))
            logarithm += ruledOut;
        candidates.add(tag, logarithm);
    }
    if (candidates.count == 0)
        candidates.add(PennTag::NN, 0);
}

const SentenceTagger::Candidates &SentenceTagger::candidatesBefore(std::size_t index,
                                                                   std::size_t distance) const
{
    if (index >= distance)
        return m_candidates[index - distance];
    return distance - index == 1 ? m_fullStop : m_wordBeforeFullStop;
}

/// One column of the trellis: the best path to each pair of candidates that ends in this word.
void SentenceTagger::advance(std::size_t index)
{
    const Candidates &before = candidatesBefore(index, 2);
    const Candidates &previous = candidatesBefore(index, 1);
    const Candidates &current = m_candidates[index];
    for (std::size_t p = 0; p < previous.count; ++p) {
        float *best = &m_nextScores[pair(p, 0)];
        std::fill_n(best, current.count, -std::numeric_limits<float>::infinity());
        for (std::size_t b = 0; b < before.count; ++b) {
            const float *row = m_model.transitions().row(before.odds[b].tag, previous.odds[p].tag);
            for (std::size_t c = 0; c < current.count; ++c) {
                const float score = m_scores[pair(b, p)] + row[slot(current.odds[c].tag)];
                if (score <= best[c])
                    continue;
                best[c] = score;
                m_back[index][pair(p, c)] = static_cast<quint8>(b);
            }
        }
        for (std::size_t c = 0; c < current.count; ++c)
            best[c] += current.odds[c].logarithm;
    }
    m_scores.swap(m_nextScores);
}

void SentenceTagger::readBack(std::span<PennTag> tags) const
{
    const std::size_t last = tags.size() - 1;
    const std::size_t previousCount = candidatesBefore(last, 1).count;
    std::size_t previous = 0;
    std::size_t current = 0;
    for (std::size_t p = 0; p < previousCount; ++p) {
        for (std::size_t c = 0; c < m_candidates[last].count; ++c) {
            if (m_scores[pair(p, c)] > m_scores[pair(previous, current)]) {
                previous = p;
                current = c;
            }
        }
    }
    for (std::size_t index = last + 1; index-- > 0;) {
        tags[index] = m_candidates[index].odds[current].tag;
        const std::size_t before = m_back[index][pair(previous, current)];
        current = previous;
        previous = before;
    }
}

} // namespace Tavrin::English
