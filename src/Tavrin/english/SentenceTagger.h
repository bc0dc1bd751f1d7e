// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include <Tavrin/english/EnglishModel.h>
#include <Tavrin/english/WordForm.h>

namespace Tavrin::English
{

/// Finds the likeliest tags of a sentence's words: a hidden Markov model of trigrams, decoded
/// exactly (Viterbi 1967). Keeps its working memory from one sentence to the next.
class SentenceTagger
{
public:
    explicit SentenceTagger(const EnglishModel &model);

    /// One tag for each word. Punctuation marks are words here.
    void tag(std::span<const WordForm> words, std::span<PennTag> tags);

    /// The word is in the lexicon, or the dictionary knows it, endings considered.
    bool isKnown(const WordForm &word) const;

private:
    static constexpr std::size_t maximumCandidates = 16;
    struct Candidates {
        std::array<TagOdds, maximumCandidates> odds;
        std::size_t count = 0;

        void add(PennTag tag, float logarithm);
    };
    /// What a capital means depends on how the rest of the sentence is set.
    enum class Setting { Prose, TitleCase, AllCapitals };

    static Setting setting(std::span<const WordForm> words);
    void findCandidates(const WordForm &word, const WordForm *before, Setting setting,
                        Candidates &candidates) const;
    std::optional<PennTag> tagBySpelling(const WordForm &word, Setting setting) const;
    void addKnown(const WordForm &form, const Lexicon::Word &word, bool capitalTells,
                  Setting setting, Candidates &candidates) const;
    void addUnknown(const WordForm &word, bool capitalTells, Setting setting,
                    Candidates &candidates) const;
    const Candidates &candidatesBefore(std::size_t index, std::size_t distance) const;
    void advance(std::size_t index);
    void readBack(std::span<PennTag> tags) const;

    /// One number for each pair (previous, current) of candidates.
    template <typename Number>
    using Pairs = std::array<Number, maximumCandidates * maximumCandidates>;
    static constexpr std::size_t pair(std::size_t previous, std::size_t current)
    {
        return previous * maximumCandidates + current;
    }

    const EnglishModel &m_model;
    /// What stands before the first word of every sentence.
    Candidates m_fullStop;
    Candidates m_wordBeforeFullStop;
    std::vector<Candidates> m_candidates;
    /// For each word, which candidate stood before the pair on the likeliest path.
    std::vector<Pairs<quint8>> m_back;
    Pairs<float> m_scores;
    Pairs<float> m_nextScores;
};

} // namespace Tavrin::English
