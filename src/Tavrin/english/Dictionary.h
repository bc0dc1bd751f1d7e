// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

#include <array>
#include <vector>

#include <Tavrin/english/PennTag.h>
#include <Tavrin/english/WordTable.h>

namespace Tavrin::English
{

enum class WordClass : quint8 { Noun, Verb, Adjective, Adverb };

/// The single words of WordNet (Fellbaum 1998) by class, with its irregular forms and its rules
/// for taking endings off.
class Dictionary
{
public:
    Dictionary();

    /// The lines of an "index" file; lines of the licence, phrases and the rest of each line are
    /// passed over.
    void readIndex(QByteArrayView file, WordClass wordClass);
    /// The lines of an "exc" file: an irregular form, and its base.
    void readExceptions(QByteArrayView file, WordClass wordClass);

    bool holds(std::string_view word, WordClass wordClass) const;
    bool holdsAny(std::string_view word) const;

    /// The base of an irregular form; empty if it is none.
    std::string_view irregularBase(std::string_view word, WordClass wordClass) const;

    /// The infinitive of an irregular verb form; empty if it is none. Words that are not listed
    /// are tried without a prefix: "overwritten".
    std::string irregularInfinitive(std::string_view word) const;

    /// The bases that the rules of the class make of a word, those first that come first in the
    /// rules, whether or not they are words.
    template <typename Callback>
    static void enumerateBases(std::string_view word, WordClass wordClass, Callback &&callback);

    /// Every tag that the word may have by this dictionary, endings considered.
    PennTagSet tags(std::string_view word) const;

private:
    struct Rule {
        std::string_view ending;
        std::string_view replacement;
    };
    static constexpr std::size_t maximumRules = 8;
    static const std::array<std::array<Rule, maximumRules>, 4> rules;

    bool hasBase(std::string_view word, WordClass wordClass, std::string_view ending) const;
    void insertVerbTags(std::string_view word, PennTagSet &tags) const;
    void insertDegreeTags(std::string_view word, PennTagSet &tags) const;

    WordTable m_words;
    /// One bit a class.
    std::vector<quint8> m_classes;
    /// Irregular forms, a class letter before each, and the number of the base among the words.
    WordTable m_irregularForms;
    std::vector<int> m_irregularBases;
};

template <typename Callback>
void Dictionary::enumerateBases(std::string_view word, WordClass wordClass, Callback &&callback)
{
    for (const Rule &rule : rules[static_cast<std::size_t>(wordClass)]) {
        if (rule.ending.empty())
            return;
        if (word.size() <= rule.ending.size() + 1 || !word.ends_with(rule.ending))
            continue;
        std::string base(word.substr(0, word.size() - rule.ending.size()));
        callback(base.append(rule.replacement), rule.ending);
    }
}

} // namespace Tavrin::English
