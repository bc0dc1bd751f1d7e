// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <vector>

#include <Tavrin/english/PennTag.h>
#include <Tavrin/english/WordTable.h>

namespace Tavrin::English
{

/// What an unknown word's ending says of its tag, learnt from the rare words of a lexicon: a long
/// ending's counts are smoothed by those of the next shorter one (after Brants, TnT, 2000).
class EndingModel
{
public:
    /// How a word is spelled, beside its ending.
    enum class Spelling : quint8 { Lowercase, Capitalized, Hyphenated };

    /// The tags that unknown words may have.
    static constexpr std::array openTags = {PennTag::NN,  PennTag::NNS, PennTag::NNP, PennTag::NNPS,
                                            PennTag::JJ,  PennTag::JJR, PennTag::JJS, PennTag::RB,
                                            PennTag::VB,  PennTag::VBD, PennTag::VBN, PennTag::VBG,
                                            PennTag::VBZ, PennTag::VBP, PennTag::CD,  PennTag::UH};
    /// One for each open tag, adding up to 1.
    using Probabilities = std::array<float, openTags.size()>;

    EndingModel();

    /// Adds a word's occurrences; only before finish().
    void learn(std::string_view word, PennTag tag, double count);
    void finish();

    /// By the longest ending that was learnt.
    const Probabilities &probabilities(std::string_view word, Spelling spelling) const;

private:
    static constexpr std::size_t longestEnding = 4;

    void learnAs(std::string_view word, Spelling spelling, std::size_t openTag, float count);

    WordTable m_endings;
    std::vector<Probabilities> m_probabilities;
};

} // namespace Tavrin::English
