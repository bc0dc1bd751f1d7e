// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include <Tavrin/english/EnglishModel.h>
#include <Tavrin/english/WordForm.h>

namespace Tavrin::English
{

/// The dictionary form of words: WordNet's irregular forms and endings, and for words that it
/// does not list the ordinary spelling rules.
class Lemmatizer
{
public:
    explicit Lemmatizer(const EnglishModel &model);

    /// Folded, of a word with the tag that it has in its sentence.
    std::string lemma(const WordForm &form, PennTag tag) const;

private:
    bool isHiddenPlural(std::string_view word) const;
    std::string nounLemma(std::string_view word) const;
    std::string verbLemma(std::string_view word, PennTag tag) const;
    std::string degreeLemma(std::string_view word, WordClass wordClass) const;
    std::string bestBase(std::string_view word, WordClass wordClass) const;

    const EnglishModel &m_model;
};

} // namespace Tavrin::English
