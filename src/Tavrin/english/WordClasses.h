// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/english/PennTag.h>
#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin::English
{

/// The lexical class that a word's tag belongs to.
constexpr LinguisticTag lexicalClass(PennTag tag)
{
    constexpr PennTagSet nouns{PennTag::NN, PennTag::NNS, PennTag::NNP, PennTag::NNPS};
    constexpr PennTagSet verbs{PennTag::VB,  PennTag::VBD, PennTag::VBN, PennTag::VBG,
                               PennTag::VBZ, PennTag::VBP, PennTag::MD};
    constexpr PennTagSet adjectives{PennTag::JJ, PennTag::JJR, PennTag::JJS};
    if (nouns.contains(tag))
        return LinguisticTag::Noun;
    if (verbs.contains(tag))
        return LinguisticTag::Verb;
    if (adjectives.contains(tag))
        return LinguisticTag::Adjective;
    return tag == PennTag::CD ? LinguisticTag::Number : LinguisticTag::OtherWord;
}

} // namespace Tavrin::English
