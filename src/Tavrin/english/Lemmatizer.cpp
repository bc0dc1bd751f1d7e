// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/Lemmatizer.h>

#include <algorithm>
#include <array>

namespace Tavrin::English
{

namespace
{

struct Pair {
    std::string_view form;
    std::string_view lemma;
};

/// Auxiliaries, whole and contracted.
constexpr std::array auxiliaries = {
    Pair{"is", "be"},    Pair{"are", "be"},   Pair{"was", "be"},   Pair{"were", "be"},
    Pair{"been", "be"},  Pair{"being", "be"}, Pair{"am", "be"},    Pair{"'m", "be"},
    Pair{"'re", "be"},   Pair{"has", "have"}, Pair{"had", "have"}, Pair{"having", "have"},
    Pair{"'ve", "have"}, Pair{"does", "do"},  Pair{"did", "do"},   Pair{"done", "do"},
    Pair{"'ll", "will"}, Pair{"wo", "will"},  Pair{"ca", "can"},   Pair{"'s", "be"},
    Pair{"ai", "be"},    Pair{"gon", "go"},   Pair{"wan", "want"},
};

/// Plurals in the dictionary of words that nobody uses in the singular, or that have none.
constexpr std::array unchangedPlurals = {
    std::string_view("data"),  std::string_view("species"),   std::string_view("series"),
    std::string_view("means"), std::string_view("news"),      std::string_view("people"),
    std::string_view("media"), std::string_view("semantics"),
};

bool isVowel(char letter)
{
    return std::string_view("aeiou").find(letter) != std::string_view::npos;
}

bool hasVowel(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char letter) { return isVowel(letter) || letter == 'y'; });
}

/// The stem of a verb whose "ed" or "ing" was taken off: "grepp" gives "grep", "cach" "cache".
std::string restoredStem(std::string_view stem)
{
    std::string result(stem);
    const std::size_t length = stem.size();
    if (length < 2)
        return result;
    const char last = stem[length - 1];
    const char previous = stem[length - 2];
    if (last == previous && std::string_view("bdgmnprt").find(last) != std::string_view::npos)
        result.pop_back();
    else if (last == 'i')
        result.back() = 'y';
    else if (std::string_view("cuvz").find(last) != std::string_view::npos ||
             stem.ends_with("at") || stem.ends_with("dl") || stem.ends_with("bl") ||
             stem.ends_with("pl") || (last == 's' && previous != 's') ||
             (last == 'g' && previous != 'n'))
        result.push_back('e');
    return result;
}

/// An unlisted noun without its plural ending.
std::string regularSingular(std::string_view word)
{
    if (word.size() < 4 || !word.ends_with('s') || word.ends_with("ss") || word.ends_with("us") ||
        word.ends_with("is"))
        return std::string(word);
    if (word.ends_with("ies") && word.size() > 4)
        return std::string(word.substr(0, word.size() - 3)) + 'y';
    for (const std::string_view ending : {"ches", "shes", "sses", "xes", "tzes", "zzes"}) {
        if (word.ends_with(ending))
            return std::string(word.substr(0, word.size() - 2));
    }
    return std::string(word.substr(0, word.size() - 1));
}

/// An unlisted verb without its ending.
std::string regularInfinitive(std::string_view word, PennTag tag)
{
    if (tag == PennTag::VBZ)
        return regularSingular(word);
    for (const std::string_view ending : {"ing", "ed"}) {
        if (!word.ends_with(ending) || word.size() < ending.size() + 2)
            continue;
        const std::string_view stem = word.substr(0, word.size() - ending.size());
        if (hasVowel(stem))
            return restoredStem(stem);
    }
    return std::string(word);
}

} // namespace

Lemmatizer::Lemmatizer(const EnglishModel &model) : m_model(model) {}

std::string Lemmatizer::lemma(const WordForm &form, PennTag tag) const
{
    const std::string_view word = form.folded();
    switch (tag) {
    case PennTag::NN:
    case PennTag::NNP:
        return !form.isAcronym() && isHiddenPlural(word) ? nounLemma(word) : std::string(word);
    case PennTag::NNS:
    case PennTag::NNPS:
        return nounLemma(word);
    case PennTag::VBD:
    case PennTag::VBN:
    case PennTag::VBG:
    case PennTag::VBZ:
    case PennTag::VBP:
    case PennTag::VB:
    case PennTag::MD:
        return verbLemma(word, tag);
    case PennTag::JJR:
    case PennTag::JJS:
        return degreeLemma(word, WordClass::Adjective);
    default:
        return std::string(word);
    }
}

/// A plural that was taken for a name, as any word in a heading may be: the dictionary knows it by
/// its singular alone.
bool Lemmatizer::isHiddenPlural(std::string_view word) const
{
    return word.ends_with('s') && !m_model.dictionary().holds(word, WordClass::Noun) &&
           !bestBase(word, WordClass::Noun).empty();
}

/// Of the bases that the dictionary lists, the one met most often in running text.
std::string Lemmatizer::bestBase(std::string_view word, WordClass wordClass) const
{
    std::string best;
    float bestCount = -1;
    Dictionary::enumerateBases(word, wordClass, [&](const std::string &base, std::string_view) {
        if (!m_model.dictionary().holds(base, wordClass))
            return;
        const float count = m_model.lexicon().count(base);
        if (count > bestCount) {
            best = base;
            bestCount = count;
        }
    });
    return best;
}

std::string Lemmatizer::nounLemma(std::string_view word) const
{
    if (std::find(unchangedPlurals.begin(), unchangedPlurals.end(), word) != unchangedPlurals.end())
        return std::string(word);
    if (const auto irregular = m_model.dictionary().irregularBase(word, WordClass::Noun);
        !irregular.empty())
        return std::string(irregular);
    std::string base = bestBase(word, WordClass::Noun);
    if (!base.empty())
        return base;
    return m_model.dictionary().holds(word, WordClass::Noun) ? std::string(word)
                                                             : regularSingular(word);
}

std::string Lemmatizer::verbLemma(std::string_view word, PennTag tag) const
{
    if (word == "'d")
        return tag == PennTag::MD ? "would" : "have";
    const auto *const auxiliary =
        std::find_if(auxiliaries.begin(), auxiliaries.end(),
                     [word](const Pair &pair) { return pair.form == word; });
    if (auxiliary != auxiliaries.end())
        return std::string(auxiliary->lemma);
    if (tag == PennTag::VB || tag == PennTag::VBP || tag == PennTag::MD)
        return std::string(word);
    std::string irregular = m_model.dictionary().irregularInfinitive(word);
    std::string base = bestBase(word, WordClass::Verb);
    // Both exist for "installed", whose irregular base is the rarer spelling.
    if (!irregular.empty() &&
        (base.empty() || m_model.lexicon().count(irregular) >= m_model.lexicon().count(base)))
        return irregular;
    if (!base.empty())
        return base;
    if (m_model.dictionary().holds(word, WordClass::Verb))
        return std::string(word);
    return regularInfinitive(word, tag);
}

std::string Lemmatizer::degreeLemma(std::string_view word, WordClass wordClass) const
{
    if (word == "more" || word == "most" || word == "less" || word == "least")
        return std::string(word);
    if (const auto irregular = m_model.dictionary().irregularBase(word, wordClass);
        !irregular.empty())
        return word == "better" ? "good" : std::string(irregular);
    const std::string base = bestBase(word, wordClass);
    return base.empty() ? std::string(word) : base;
}

} // namespace Tavrin::English
