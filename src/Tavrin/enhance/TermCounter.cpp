// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/TermCounter.h>

#include <algorithm>

#include <Tavrin/enhance/LineEndHyphens.h>
#include <Tavrin/model/EntryText.h>
#include <Tavrin/platform/CharacterSet.h>

namespace Tavrin
{

namespace
{

bool contains(const std::vector<LinguisticTag> &classes, LinguisticTag tag)
{
    return std::find(classes.begin(), classes.end(), tag) != classes.end();
}

/// Without blanks and tabs at the ends, nor hyphens whose other word is none of the phrase; line
/// ends stay.
QString trimmed(const QString &text)
{
    const auto isLoose = [](QChar character) {
        return CharacterSet::isWhiteSpace(character) || character == u'-' ||
               character == u'\u2010' || character == u'\u2011';
    };
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && isLoose(text[first]))
        ++first;
    while (end > first && isLoose(text[end - 1]))
        --end;
    return text.sliced(first, end - first);
}

} // namespace

TermCounter::TermCounter(const Rules &rules)
    : m_stopWords(rules.stopWords.begin(), rules.stopWords.end()),
      m_terminators(rules.terminators.begin(), rules.terminators.end()),
      m_keywordClasses(rules.keywordClasses),
      m_phraseClasses(rules.phraseClasses)
{
    for (const QString &terminator : rules.terminators)
        m_longestTerminator = std::max(m_longestTerminator, terminator.size());
}

TermCounts TermCounter::count(const QString &text)
{
    m_counts.clear();
    m_phrase.clear();
    m_phraseWords = 0;
    m_text = text;
    tagger().setString(text);
    // A text with characters of several units loses as many units at its end.
    const TextRange range{0, EntryText::characterCount(text)};
    m_tagger->enumerateTags(range, TagScheme::TokenType,
                            [this](std::optional<LinguisticTag> type, TextRange token, TextRange,
                                   bool &) { addToken(token, type); });
    flushPhrase();
    return std::exchange(m_counts, {});
}

QString TermCounter::healed(const QString &text)
{
    return withoutLineEndHyphens(text, tagger());
}

LinguisticTagger &TermCounter::tagger()
{
    if (!m_tagger)
        m_tagger = LinguisticTagger::make();
    return *m_tagger;
}

void TermCounter::addToken(TextRange range, std::optional<LinguisticTag> type)
{
    const auto lexicalClass = m_tagger->tagAt(range.location, TagScheme::LexicalClass);
    if (!lexicalClass)
        return;
    if (*lexicalClass == LinguisticTag::ParagraphBreak ||
        *lexicalClass == LinguisticTag::OtherWord || isTerminator(range)) {
        flushPhrase();
        return;
    }
    const bool joins = *lexicalClass == LinguisticTag::WordJoiner;
    if (type == LinguisticTag::Punctuation && !joins) {
        flushPhrase();
        return;
    }
    if (type == LinguisticTag::Word) {
        addWord(range, *lexicalClass, lowercase(range));
    } else if (joins) {
        // A hyphenated word stands in a phrase as it stands in the text, with no blank in it.
        if (m_phrase.endsWith(u' '))
            m_phrase.chop(1);
        m_phrase += lowercase(range);
    }
}

void TermCounter::addWord(TextRange range, LinguisticTag lexicalClass, const QString &word)
{
    const auto lemma = m_tagger->lemmaAt(range.location);
    if (!lemma) {
        flushPhrase();
        return;
    }
    if (contains(m_keywordClasses, lexicalClass)) {
        const QString term = lemma->toLower();
        if (!m_stopWords.contains(term))
            add(term);
    }
    if (!contains(m_phraseClasses, lexicalClass)) {
        flushPhrase();
        return;
    }
    m_phrase += word + u' ';
    ++m_phraseWords;
}

void TermCounter::flushPhrase()
{
    if (m_phraseWords >= 2)
        add(trimmed(m_phrase));
    m_phrase.resize(0);
    m_phraseWords = 0;
}

/// A map parts keywords by commas, so a term like "1,000 bytes" can't stand in it.
void TermCounter::add(const QString &term)
{
    if (!term.isEmpty() && !term.contains(u','))
        m_counts.add(shared(term), 1);
}

QString TermCounter::lowercase(TextRange range) const
{
    return m_text.sliced(range.location, range.length).toLower();
}

bool TermCounter::isTerminator(TextRange range) const
{
    return range.length <= m_longestTerminator && m_terminators.contains(lowercase(range));
}

const QString &TermCounter::shared(const QString &term)
{
    return *m_terms.insert(term);
}

} // namespace Tavrin
