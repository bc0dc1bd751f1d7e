// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/EnglishTokenizer.h>

#include <algorithm>
#include <array>

#include <Tavrin/platform/CharacterSet.h>

namespace Tavrin::English
{

namespace
{

bool isWordCharacter(QChar character)
{
    const ushort code = character.unicode();
    if (code < 0x80)
        return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
               (code >= '0' && code <= '9') || code == '_';
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

bool isDigit(QChar character)
{
    return character.unicode() < 0x80 ? character >= u'0' && character <= u'9'
                                      : character.isDigit();
}

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == u'\u2019';
}

bool isHyphen(QChar character)
{
    return character == u'-' || character == u'\u2010' || character == u'\u2011';
}

/// A mark is written over a letter; over a sign of a formula it makes no word.
bool startsWord(QChar character)
{
    return isWordCharacter(character) && !character.isMark();
}

/// Abbreviations whose full stop ends no sentence.
bool isAbbreviation(QStringView word)
{
    static constexpr std::array<QStringView, 16> abbreviations = {
        u"e.g", u"i.e", u"cf", u"etc", u"fig", u"figs", u"sec", u"vs",
        u"vol", u"no",  u"pp", u"ch",  u"mr",  u"dr",   u"eq",  u"ref"};
    return (word.size() == 1 && word.front().isLetter()) ||
           std::any_of(abbreviations.begin(), abbreviations.end(), [word](QStringView known) {
               return word.compare(known, Qt::CaseInsensitive) == 0;
           });
}

class Tokenizer
{
public:
    explicit Tokenizer(QStringView text) : m_text(text)
    {
        m_tokens.reserve(static_cast<std::size_t>(text.size()) / 3 + 1);
    }

    std::vector<Token> tokens()
    {
        while (m_position < m_text.size())
            addNext();
        return std::move(m_tokens);
    }

private:
    QChar at(qsizetype index) const
    {
        return index >= 0 && index < m_text.size() ? m_text[index] : QChar();
    }

    void add(Token::Kind kind, qsizetype end)
    {
        m_tokens.push_back({{m_position, end - m_position}, kind});
        m_position = end;
    }

    void addNext()
    {
        const QChar character = m_text[m_position];
        if (startsWord(character))
            addWord();
        else if (CharacterSet::isWhiteSpaceOrNewline(character))
            addWhiteSpace();
        else if (isHyphen(character) && joinsWords(m_position))
            add(Token::Kind::Joiner, m_position + 1);
        else
            addMark();
    }

    bool joinsWords(qsizetype index) const
    {
        return isWordCharacter(at(index - 1)) && isWordCharacter(at(index + 1));
    }

    /// Whether a mark between two word characters belongs to the word: "e.g", "3.14", "1,000".
    bool isInsideWord(qsizetype index) const
    {
        if (!joinsWords(index))
            return false;
        const QChar mark = m_text[index];
        const bool digitsAround = isDigit(at(index - 1)) && isDigit(at(index + 1));
        if (mark == u'.')
            return digitsAround || (at(index - 1).isLetter() && at(index + 1).isLetter());
        return (mark == u',' && digitsAround && isNumberUpTo(index)) || isApostrophe(mark);
    }

    /// A comma is part of "1,000" and none of "f1,2".
    bool isNumberUpTo(qsizetype end) const
    {
        return std::all_of(m_text.begin() + m_position, m_text.begin() + end,
                           [](QChar character) { return isDigit(character) || character == u','; });
    }

    void addWord()
    {
        qsizetype end = m_position + 1;
        while (end < m_text.size() && (isWordCharacter(m_text[end]) || isInsideWord(end)))
            ++end;
        const qsizetype contraction = contractionStart(end);
        if (contraction > m_position && contraction < end)
            add(Token::Kind::Word, contraction);
        add(Token::Kind::Word, end);
    }

    /// Where "n't", "'s", "'ll" and their kin begin at the end of a word; the end if none does.
    qsizetype contractionStart(qsizetype end) const
    {
        const QStringView word = m_text.sliced(m_position, end - m_position);
        const auto mark = std::find_if(word.rbegin(), word.rend(), isApostrophe);
        if (mark == word.rend())
            return end;
        const QStringView rest = word.last(mark - word.rbegin());
        const qsizetype start = end - rest.size() - 1;
        const auto is = [rest](QStringView text) {
            return rest.compare(text, Qt::CaseInsensitive) == 0;
        };
        if (is(u"t") && at(start - 1).toLower() == u'n')
            return start - 1;
        const bool contracted =
            is(u"s") || is(u"ll") || is(u"re") || is(u"ve") || is(u"d") || is(u"m");
        return contracted ? start : end;
    }

    void addWhiteSpace()
    {
        const QChar first = m_text[m_position];
        if (CharacterSet::isNewline(first)) {
            addLineEnds();
            return;
        }
        qsizetype end = m_position + 1;
        while (first != u'\t' && end < m_text.size() && m_text[end] != u'\t' &&
               CharacterSet::isWhiteSpace(m_text[end]))
            ++end;
        add(Token::Kind::Blank, end);
    }

    /// Each line end is a token; a carriage return and its line feed are one.
    void addLineEnds()
    {
        const std::size_t first = m_tokens.size();
        while (m_position < m_text.size() && CharacterSet::isNewline(m_text[m_position])) {
            const bool pair = m_text[m_position] == u'\r' && at(m_position + 1) == u'\n';
            add(Token::Kind::LineEnd, m_position + (pair ? 2 : 1));
        }
        if (m_tokens.size() - first < 2 && m_text[m_position - 1] != QChar::ParagraphSeparator)
            return;
        for (std::size_t index = first; index < m_tokens.size(); ++index)
            m_tokens[index].kind = Token::Kind::ParagraphBreak;
        m_tokens.back().endsSentence = true;
    }

    void addMark()
    {
        const QChar mark = m_text[m_position];
        const bool surrogates = mark.isHighSurrogate() && at(m_position + 1).isLowSurrogate();
        const bool ends = endsSentence();
        add(CharacterSet::isPunctuation(mark) ? Token::Kind::Punctuation : Token::Kind::Symbol,
            m_position + (surrogates ? 2 : 1));
        m_tokens.back().endsSentence = ends;
    }

    /// Behind it comes a blank and then no small letter.
    bool endsSentence() const
    {
        const QChar mark = m_text[m_position];
        if (mark != u'.' && mark != u'?' && mark != u'!')
            return false;
        if (!m_tokens.empty() && mark == u'.' && m_tokens.back().kind == Token::Kind::Word &&
            isAbbreviation(
                m_text.sliced(m_tokens.back().range.location, m_tokens.back().range.length)))
            return false;
        qsizetype next = m_position + 1;
        if (next < m_text.size() && !CharacterSet::isWhiteSpaceOrNewline(m_text[next]))
            return false;
        while (next < m_text.size() && CharacterSet::isWhiteSpaceOrNewline(m_text[next]))
            ++next;
        return next >= m_text.size() || !m_text[next].isLower();
    }

    QStringView m_text;
    qsizetype m_position = 0;
    std::vector<Token> m_tokens;
};

} // namespace

std::vector<Token> tokenize(QStringView text)
{
    return Tokenizer(text).tokens();
}

} // namespace Tavrin::English
