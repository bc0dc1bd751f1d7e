// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/Dictionary.h>

#include <algorithm>

#include <Tavrin/english/LineReader.h>

namespace Tavrin::English
{

namespace
{

constexpr std::size_t expectedDictionaryWords = 90'000;
constexpr std::size_t expectedIrregularForms = 6'500;

constexpr quint8 bit(WordClass wordClass)
{
    return static_cast<quint8>(1U << static_cast<unsigned>(wordClass));
}

std::string irregularKey(std::string_view word, WordClass wordClass)
{
    std::string key(1, "nvar"[static_cast<std::size_t>(wordClass)]);
    return key.append(word);
}

std::string_view firstField(std::string_view line)
{
    return line.substr(0, std::min(line.find(' '), line.size()));
}

} // namespace

const std::array<std::array<Dictionary::Rule, Dictionary::maximumRules>, 4> Dictionary::rules = {{
    {{{"s", ""},
      {"ses", "s"},
      {"xes", "x"},
      {"zes", "z"},
      {"ches", "ch"},
      {"shes", "sh"},
      {"men", "man"},
      {"ies", "y"}}},
    {{{"s", ""},
      {"ies", "y"},
      {"es", "e"},
      {"es", ""},
      {"ed", "e"},
      {"ed", ""},
      {"ing", "e"},
      {"ing", ""}}},
    {{{"er", ""}, {"est", ""}, {"er", "e"}, {"est", "e"}}},
    {},
}};

Dictionary::Dictionary()
    : m_words(expectedDictionaryWords), m_irregularForms(expectedIrregularForms)
{
}

void Dictionary::readIndex(QByteArrayView file, WordClass wordClass)
{
    forEachLine(file, [this, wordClass](std::string_view line) {
        const std::string_view word = firstField(line);
        if (word.empty() || word.find('_') != std::string_view::npos)
            return;
        const auto number = static_cast<std::size_t>(m_words.insert(word));
        m_classes.resize(std::max(m_classes.size(), number + 1));
        m_classes[number] = static_cast<quint8>(m_classes[number] | bit(wordClass));
    });
}

void Dictionary::readExceptions(QByteArrayView file, WordClass wordClass)
{
    forEachLine(file, [this, wordClass](std::string_view line) {
        const std::string_view word = firstField(line);
        if (word.size() >= line.size() || line.find('_') != std::string_view::npos)
            return;
        const std::string_view base = firstField(line.substr(word.size() + 1));
        const int form = m_irregularForms.insert(irregularKey(word, wordClass));
        // A form with several bases keeps the first.
        if (form == static_cast<int>(m_irregularBases.size()))
            m_irregularBases.push_back(m_words.insert(base));
        m_classes.resize(static_cast<std::size_t>(m_words.size()));
    });
}

bool Dictionary::holds(std::string_view word, WordClass wordClass) const
{
    const int number = m_words.find(word);
    return number != WordTable::absent &&
           (m_classes[static_cast<std::size_t>(number)] & bit(wordClass)) != 0;
}

bool Dictionary::holdsAny(std::string_view word) const
{
    const int number = m_words.find(word);
    return number != WordTable::absent && m_classes[static_cast<std::size_t>(number)] != 0;
}

std::string_view Dictionary::irregularBase(std::string_view word, WordClass wordClass) const
{
    const int form = m_irregularForms.find(irregularKey(word, wordClass));
    if (form == WordTable::absent)
        return {};
    return m_words.word(m_irregularBases[static_cast<std::size_t>(form)]);
}

std::string Dictionary::irregularInfinitive(std::string_view word) const
{
    const auto whole = irregularBase(word, WordClass::Verb);
    if (!whole.empty() || holdsAny(word))
        return std::string(whole);
    for (const std::string_view prefix :
         {"over", "under", "re", "un", "pre", "mis", "out", "sub", "inter"}) {
        if (!word.starts_with(prefix) || word.size() < prefix.size() + 3)
            continue;
        const auto base = irregularBase(word.substr(prefix.size()), WordClass::Verb);
        if (!base.empty())
            return std::string(prefix).append(base);
    }
    return {};
}

bool Dictionary::hasBase(std::string_view word, WordClass wordClass, std::string_view ending) const
{
    bool found = false;
    enumerateBases(word, wordClass, [&](const std::string &base, std::string_view taken) {
        found = found || (taken.ends_with(ending) && holds(base, wordClass));
    });
    return found;
}

PennTagSet Dictionary::tags(std::string_view word) const
{
    PennTagSet tags;
    if (holds(word, WordClass::Noun))
        tags.insert(PennTag::NN);
    if (hasBase(word, WordClass::Noun, "s") || !irregularBase(word, WordClass::Noun).empty())
        tags.insert(PennTag::NNS);
    if (holds(word, WordClass::Adverb))
        tags.insert(PennTag::RB);
    insertVerbTags(word, tags);
    insertDegreeTags(word, tags);
    return tags;
}

void Dictionary::insertVerbTags(std::string_view word, PennTagSet &tags) const
{
    if (holds(word, WordClass::Verb))
        tags.insert({PennTag::VB, PennTag::VBP});
    const bool irregular = !irregularInfinitive(word).empty();
    const bool ing = word.ends_with("ing");
    const bool s = word.ends_with("s");
    if ((irregular && s) || hasBase(word, WordClass::Verb, "s"))
        tags.insert(PennTag::VBZ);
    if ((irregular && ing) || hasBase(word, WordClass::Verb, "ing"))
        tags.insert(PennTag::VBG);
    if ((irregular && !s && !ing) || hasBase(word, WordClass::Verb, "ed"))
        tags.insert({PennTag::VBD, PennTag::VBN});
}

void Dictionary::insertDegreeTags(std::string_view word, PennTagSet &tags) const
{
    if (holds(word, WordClass::Adjective))
        tags.insert(PennTag::JJ);
    const bool irregular = !irregularBase(word, WordClass::Adjective).empty();
    if ((irregular && word.ends_with("r")) || hasBase(word, WordClass::Adjective, "er"))
        tags.insert(PennTag::JJR);
    if ((irregular && word.ends_with("t")) || hasBase(word, WordClass::Adjective, "est"))
        tags.insert(PennTag::JJS);
}

} // namespace Tavrin::English
