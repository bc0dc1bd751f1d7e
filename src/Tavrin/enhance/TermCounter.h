// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>
#include <QStringList>

#include <vector>

#include <Tavrin/enhance/TermCounts.h>
#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin
{

/// Counts the terms of texts: lemmas of single words of the keyword classes, and phrases, which
/// are two or more consecutive words of the phrase classes as they stand in the text.
///
/// All terms are in lowercase. Phrases don't pass through the stop list.
class TermCounter
{
public:
    struct Rules {
        QStringList stopWords;
        /// Tokens that end a phrase.
        QStringList terminators;
        std::vector<LinguisticTag> keywordClasses;
        std::vector<LinguisticTag> phraseClasses;
    };

    explicit TermCounter(const Rules &rules);

    /// Throws LinguisticTaggerError if there is no tagger.
    TermCounts count(const QString &text);

    /// A text of printed lines with its broken words made whole (see LineEndHyphens). Throws the
    /// same.
    QString healed(const QString &text);

private:
    LinguisticTagger &tagger();
    void addToken(TextRange range, std::optional<LinguisticTag> type);
    void addWord(TextRange range, LinguisticTag lexicalClass, const QString &word);
    void flushPhrase();
    void add(const QString &term);
    QString lowercase(TextRange range) const;
    bool isTerminator(TextRange range) const;
    /// One object for all occurrences of a term, so that keeping it in many counts costs little.
    const QString &shared(const QString &term);

    QSet<QString> m_stopWords;
    QSet<QString> m_terminators;
    qsizetype m_longestTerminator = 0;
    std::vector<LinguisticTag> m_keywordClasses;
    std::vector<LinguisticTag> m_phraseClasses;
    std::unique_ptr<LinguisticTagger> m_tagger;
    QSet<QString> m_terms;
    QString m_text;
    TermCounts m_counts;
    QString m_phrase;
    int m_phraseWords = 0;
};

} // namespace Tavrin
