// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/english/EnglishTokenizer.h>
#include <Tavrin/english/Lemmatizer.h>
#include <Tavrin/english/SentenceTagger.h>
#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin::English
{

/// The tagger of English texts. Tokens are cut when a text is set, tags are found when the first
/// lexical class or lemma is asked for.
class EnglishTagger final : public LinguisticTagger
{
public:
    explicit EnglishTagger(std::shared_ptr<const EnglishModel> model);

    void setString(const QString &text) override;
    void enumerateTags(TextRange range, TagScheme scheme, const TokenCallback &callback) override;
    std::optional<LinguisticTag> tagAt(qsizetype position, TagScheme scheme) override;
    std::optional<QString> lemmaAt(qsizetype position) override;
    bool isKnownWord(const QString &word) const override;

private:
    std::size_t tokenAt(qsizetype position);
    LinguisticTag tag(std::size_t token, TagScheme scheme);
    LinguisticTag lexicalClass(std::size_t token);
    QStringView spelling(std::size_t token) const;
    void findTags();
    void tagSentence(std::size_t first, std::size_t end);
    bool looksEnglish() const;
    TextRange sentence(std::size_t token);

    std::shared_ptr<const EnglishModel> m_model;
    SentenceTagger m_sentenceTagger;
    Lemmatizer m_lemmatizer;
    QString m_text;
    std::vector<Token> m_tokens;
    /// One for each token, once found; a token that is no word has none that means anything.
    std::vector<PennTag> m_tags;
    bool m_hasTags = false;
    bool m_isEnglish = true;
    /// Where the last look-up ended: texts are read from front to back.
    std::size_t m_cursor = 0;
    /// The sentence that was asked for last, as tokens.
    std::size_t m_sentenceFirst = 0;
    std::size_t m_sentenceEnd = 0;
    std::vector<WordForm> m_words;
    std::vector<PennTag> m_wordTags;
};

} // namespace Tavrin::English
