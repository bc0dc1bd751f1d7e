// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// Which question a tag answers.
enum class TagScheme {
    /// What kind of token: Word, Punctuation, Whitespace or OtherToken.
    TokenType,
    /// What a token does in its sentence: all other tags.
    LexicalClass,
};

/// What a token is. The first four answer TagScheme::TokenType, the others TagScheme::LexicalClass.
enum class LinguisticTag : quint8 {
    Word,
    Punctuation,
    Whitespace,
    /// A symbol: a currency or operator sign, an arrow.
    OtherToken,
    Noun,
    /// Auxiliaries too.
    Verb,
    Adjective,
    /// In digits or in words.
    Number,
    /// Whatever else is a word or symbol: adverbs, articles, pronouns, prepositions.
    OtherWord,
    OtherPunctuation,
    OtherWhitespace,
    /// A line end of a run of line ends that parts paragraphs.
    ParagraphBreak,
    /// A hyphen between two words with no blank on either side.
    WordJoiner,
};

/// No tagger can be made. what() says in plain words what is missing and how to get it.
class TAVRIN_CORE_EXPORT LinguisticTaggerError : public std::runtime_error
{
public:
    /// `message` says what is missing: in most cases a Debian package.
    explicit LinguisticTaggerError(const QString &message);

    QString message;
};

/// Cuts a text into tokens and tells the lexical class and the dictionary form of each.
///
/// A tagger serves one text at a time and one thread at a time; several may be at work at once,
/// as what they know of the language is shared and never changes. Ranges are in UTF-16 units of
/// the text. The language is judged by the text itself: what isn't English has every word for a
/// noun, and its lowercase for the lemma.
///
///     const auto tagger = LinguisticTagger::make();
///     tagger->setString(text);
///     tagger->enumerateTags({0, text.size()}, TagScheme::LexicalClass,
///                           [&](auto tag, TextRange token, TextRange, bool &) {
///                               if (tag == LinguisticTag::Noun)
///                                   nouns += text.mid(token.location, token.length);
///                           });
class TAVRIN_CORE_EXPORT LinguisticTagger
{
public:
    /// A token's tag in the scheme asked for, its range, and the range of its sentence.
    /// The callback sets the flag to end the enumeration.
    using TokenCallback = std::function<void(std::optional<LinguisticTag> tag, TextRange token,
                                             TextRange sentence, bool &stop)>;

    LinguisticTagger() = default;
    LinguisticTagger(const LinguisticTagger &) = delete;
    LinguisticTagger &operator=(const LinguisticTagger &) = delete;
    virtual ~LinguisticTagger();

    /// The tagger that Tavrin is built with. The first one reads the language's data, which takes
    /// about a tenth of a second, whatever thread asks; a failure is told again each time.
    /// Throws LinguisticTaggerError; never returns null.
    static std::unique_ptr<LinguisticTagger> make();

    /// The text that all else is asked of from now on.
    virtual void setString(const QString &text) = 0;

    /// Calls back for every token that begins inside the range, in order: blanks and punctuation
    /// are tokens too.
    virtual void enumerateTags(TextRange range, TagScheme scheme,
                               const TokenCallback &callback) = 0;

    /// The tag of the token that holds the position; nothing outside the text.
    virtual std::optional<LinguisticTag> tagAt(qsizetype position, TagScheme scheme) = 0;

    /// The dictionary form, in lowercase, of the word that holds the position; nothing where
    /// there is no word.
    virtual std::optional<QString> lemmaAt(qsizetype position) = 0;

    /// Whether a word by itself, in whichever case, is in the dictionary, endings considered.
    virtual bool isKnownWord(const QString &word) const = 0;
};

} // namespace Tavrin
