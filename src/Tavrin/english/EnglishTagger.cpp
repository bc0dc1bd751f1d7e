// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/EnglishTagger.h>

#include <algorithm>

#include <Tavrin/english/WordClasses.h>

namespace Tavrin
{

std::unique_ptr<LinguisticTagger> LinguisticTagger::make()
{
    return std::make_unique<English::EnglishTagger>(English::EnglishModel::shared());
}

} // namespace Tavrin

namespace Tavrin::English
{

namespace
{

/// What has no full stop for so long is no sentence; it is tagged in pieces.
constexpr std::size_t longestSentence = 200;

LinguisticTag tokenType(Token::Kind kind)
{
    switch (kind) {
    case Token::Kind::Word:
        return LinguisticTag::Word;
    case Token::Kind::Joiner:
    case Token::Kind::Punctuation:
        return LinguisticTag::Punctuation;
    case Token::Kind::Symbol:
        return LinguisticTag::OtherToken;
    case Token::Kind::Blank:
    case Token::Kind::LineEnd:
    case Token::Kind::ParagraphBreak:
        break;
    }
    return LinguisticTag::Whitespace;
}

} // namespace

EnglishTagger::EnglishTagger(std::shared_ptr<const EnglishModel> model)
    : m_model(std::move(model)), m_sentenceTagger(*m_model), m_lemmatizer(*m_model)
{
}

void EnglishTagger::setString(const QString &text)
{
    m_text = text;
    m_tokens = tokenize(m_text);
    m_hasTags = false;
    m_cursor = 0;
    m_sentenceFirst = 0;
    m_sentenceEnd = 0;
}

void EnglishTagger::enumerateTags(TextRange range, TagScheme scheme, const TokenCallback &callback)
{
    const auto first =
        std::partition_point(m_tokens.begin(), m_tokens.end(), [&](const Token &token) {
            return token.range.location < range.location;
        });
    bool stop = false;
    for (auto token = static_cast<std::size_t>(first - m_tokens.begin());
         token < m_tokens.size() && m_tokens[token].range.location < range.end() && !stop; ++token)
        callback(tag(token, scheme), m_tokens[token].range, sentence(token), stop);
}

std::optional<LinguisticTag> EnglishTagger::tagAt(qsizetype position, TagScheme scheme)
{
    const std::size_t token = tokenAt(position);
    if (token == m_tokens.size())
        return std::nullopt;
    return tag(token, scheme);
}

std::optional<QString> EnglishTagger::lemmaAt(qsizetype position)
{
    const std::size_t token = tokenAt(position);
    if (token == m_tokens.size() || m_tokens[token].kind != Token::Kind::Word)
        return std::nullopt;
    findTags();
    if (!m_isEnglish)
        return spelling(token).toString().toLower();
    const WordForm form(spelling(token));
    const std::string lemma = m_lemmatizer.lemma(form, m_tags[token]);
    // A form that had to be cut keeps its whole spelling.
    if (lemma == form.folded())
        return spelling(token).toString().toLower();
    return QString::fromUtf8(lemma.data(), static_cast<qsizetype>(lemma.size()));
}

bool EnglishTagger::isKnownWord(const QString &word) const
{
    return m_sentenceTagger.isKnown(WordForm(word));
}

/// The number of tokens if the position is outside the text.
std::size_t EnglishTagger::tokenAt(qsizetype position)
{
    if (m_cursor < m_tokens.size() && m_tokens[m_cursor].range.contains(position))
        return m_cursor;
    if (position < 0 || position >= m_text.size())
        return m_tokens.size();
    if (m_cursor + 1 < m_tokens.size() && m_tokens[m_cursor + 1].range.contains(position))
        return ++m_cursor;
    const auto behind =
        std::partition_point(m_tokens.begin(), m_tokens.end(),
                             [&](const Token &token) { return token.range.location <= position; });
    m_cursor = static_cast<std::size_t>(behind - m_tokens.begin()) - 1;
    return m_cursor;
}

LinguisticTag EnglishTagger::tag(std::size_t token, TagScheme scheme)
{
    return scheme == TagScheme::TokenType ? tokenType(m_tokens[token].kind) : lexicalClass(token);
}

LinguisticTag EnglishTagger::lexicalClass(std::size_t token)
{
    switch (m_tokens[token].kind) {
    case Token::Kind::Joiner:
        return LinguisticTag::WordJoiner;
    case Token::Kind::Punctuation:
        return LinguisticTag::OtherPunctuation;
    case Token::Kind::Symbol:
        return LinguisticTag::OtherWord;
    case Token::Kind::Blank:
    case Token::Kind::LineEnd:
        return LinguisticTag::OtherWhitespace;
    case Token::Kind::ParagraphBreak:
        return LinguisticTag::ParagraphBreak;
    case Token::Kind::Word:
        break;
    }
    findTags();
    return English::lexicalClass(m_tags[token]);
}

QStringView EnglishTagger::spelling(std::size_t token) const
{
    const TextRange range = m_tokens[token].range;
    return QStringView(m_text).sliced(range.location, range.length);
}

void EnglishTagger::findTags()
{
    if (m_hasTags)
        return;
    m_hasTags = true;
    m_isEnglish = looksEnglish();
    m_tags.assign(m_tokens.size(), PennTag::NN);
    if (!m_isEnglish)
        return;
    std::size_t first = 0;
    for (std::size_t token = 0; token < m_tokens.size(); ++token) {
        if (!m_tokens[token].endsSentence && token - first < 2 * longestSentence)
            continue;
        tagSentence(first, token + 1);
        first = token + 1;
    }
    tagSentence(first, m_tokens.size());
}

void EnglishTagger::tagSentence(std::size_t first, std::size_t end)
{
    const auto counts = [this](std::size_t token) {
        const Token::Kind kind = m_tokens[token].kind;
        return kind == Token::Kind::Word || kind == Token::Kind::Punctuation ||
               kind == Token::Kind::Symbol;
    };
    m_words.clear();
    for (std::size_t token = first; token < end; ++token) {
        if (counts(token))
            m_words.emplace_back(spelling(token));
    }
    m_wordTags.resize(m_words.size());
    m_sentenceTagger.tag(m_words, m_wordTags);
    auto tag = m_wordTags.cbegin();
    for (std::size_t token = first; token < end; ++token) {
        if (counts(token))
            m_tags[token] = *tag++;
    }
}

/// Few of the words are known in a text of another language: those that it shares with English.
bool EnglishTagger::looksEnglish() const
{
    constexpr int sample = 200;
    constexpr int fewestWords = 20;
    int words = 0;
    int known = 0;
    for (std::size_t token = 0; token < m_tokens.size() && words < sample; ++token) {
        if (m_tokens[token].kind != Token::Kind::Word)
            continue;
        const WordForm form(spelling(token));
        if (form.isNumeral() || form.isIdentifier() || form.folded().size() < 2)
            continue;
        ++words;
        known += m_sentenceTagger.isKnown(form);
    }
    return words < fewestWords || known * 2 > words;
}

TextRange EnglishTagger::sentence(std::size_t token)
{
    if (token < m_sentenceFirst || token >= m_sentenceEnd) {
        m_sentenceFirst = token;
        while (m_sentenceFirst > 0 && !m_tokens[m_sentenceFirst - 1].endsSentence)
            --m_sentenceFirst;
        m_sentenceEnd = token + 1;
        while (m_sentenceEnd < m_tokens.size() && !m_tokens[m_sentenceEnd - 1].endsSentence)
            ++m_sentenceEnd;
    }
    const qsizetype start = m_tokens[m_sentenceFirst].range.location;
    return {start, m_tokens[m_sentenceEnd - 1].range.end() - start};
}

} // namespace Tavrin::English
