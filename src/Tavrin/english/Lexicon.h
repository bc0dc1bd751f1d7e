// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

#include <span>
#include <vector>

#include <Tavrin/english/Dictionary.h>
#include <Tavrin/english/EndingModel.h>
#include <Tavrin/english/TagTransitions.h>

namespace Tavrin::English
{

/// A tag that a word may have, and the logarithm of how likely a word of this tag is this word.
struct TagOdds {
    PennTag tag = PennTag::NN;
    float logarithm = 0;
};

/// The words whose tags were counted in running text, corrected where newspapers of 1989 use
/// them unlike manuals do.
class Lexicon
{
public:
    /// One line a word: ("word" ((tag logarithm) …) …), as the festival speech synthesiser has
    /// it. Whatever reads otherwise is passed over.
    Lexicon(QByteArrayView file, const TagTransitions &transitions, const Dictionary &dictionary);

    struct Word {
        std::span<const TagOdds> odds;
        /// How often it was counted.
        float count = 0;
        /// A word of grammar: an article, a pronoun, a preposition, an auxiliary.
        bool isFunctionWord = false;
    };

    /// Nothing if the word isn't known. The word is folded (see WordForm).
    std::optional<Word> find(std::string_view word) const;

    /// How often the word was counted; 0 if it isn't known.
    float count(std::string_view word) const;

    /// Nothing was counted.
    bool isEmpty() const { return !m_hasCounts; }
    const EndingModel &endings() const { return m_endings; }

private:
    using Counts = std::array<float, pennTagCount>;
    struct Entry {
        quint32 firstOdds = 0;
        quint8 oddsCount = 0;
        bool isFunctionWord = false;
        float count = 0;
    };

    std::vector<Counts> readCounts(QByteArrayView file, const TagTransitions &transitions);
    void learnEndings(const std::vector<Counts> &counts);
    void applyCorrections(std::vector<Counts> &counts);
    void addDictionaryTags(std::string_view word, Counts &counts,
                           const Dictionary &dictionary) const;
    void addEntry(const Counts &counts, const TagTransitions &transitions);

    WordTable m_words;
    std::vector<Entry> m_entries;
    std::vector<TagOdds> m_odds;
    std::vector<bool> m_functionWords;
    EndingModel m_endings;
    bool m_hasCounts = false;
};

} // namespace Tavrin::English
