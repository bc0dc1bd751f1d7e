// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/HeadingNumber.h>

#include <QHash>
#include <QRegularExpression>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

constexpr qsizetype examinedLength = 80;

const QHash<QString, HeadingNumber::Word> &words()
{
    using Word = HeadingNumber::Word;
    static const QHash<QString, Word> table{
        {u"chapter"_s, Word::Chapter},    {u"kapitel"_s, Word::Chapter},
        {u"chapitre"_s, Word::Chapter},   {u"capítulo"_s, Word::Chapter},
        {u"capitolo"_s, Word::Chapter},   {u"appendix"_s, Word::Appendix},
        {u"annex"_s, Word::Appendix},     {u"anhang"_s, Word::Appendix},
        {u"annexe"_s, Word::Appendix},    {u"apéndice"_s, Word::Appendix},
        {u"appendice"_s, Word::Appendix}, {u"part"_s, Word::Part},
        {u"teil"_s, Word::Part},          {u"partie"_s, Word::Part},
        {u"parte"_s, Word::Part},         {u"section"_s, Word::Section},
        {u"clause"_s, Word::Section},     {u"abschnitt"_s, Word::Section},
        {u"article"_s, Word::Section},    {u"sección"_s, Word::Section},
    };
    return table;
}

const QRegularExpression &numberPattern()
{
    // What follows a number without a word must be a blank, or, as some tab stops leave no blank,
    // a word right behind a number of several components.
    static const QRegularExpression pattern(
        u"^(?:(?<word>\\p{L}{4,9})\\h+|(?<sign>§+)\\h*)?"
        "(?<number>(?:\\d{1,4}|[IVXLC]{2,8}|[A-Z])(?:\\.(?:\\d{1,4}|[A-Z](?![\\p{L}])))*)"
        "(?<mark>\\.?:?)(?:\\h*[\\x{2013}\\x{2014}]\\h+|\\h+-\\h+|\\h+|$|(?<glued>(?=\\p{L}{2}|\\p{Lu}\\.)))"_s);
    return pattern;
}

const QStringList &unitNames()
{
    static const QStringList names{
        u"zero"_s,    u"one"_s,     u"two"_s,       u"three"_s,    u"four"_s,
        u"five"_s,    u"six"_s,     u"seven"_s,     u"eight"_s,    u"nine"_s,
        u"ten"_s,     u"eleven"_s,  u"twelve"_s,    u"thirteen"_s, u"fourteen"_s,
        u"fifteen"_s, u"sixteen"_s, u"seventeen"_s, u"eighteen"_s, u"nineteen"_s,
    };
    return names;
}

/// "TWELVE", "TWENTY-ONE" and "TWENTYONE".
std::optional<int> spelledValue(const QString &text)
{
    static const QStringList tens{u"twenty"_s, u"thirty"_s,  u"forty"_s,  u"fifty"_s,
                                  u"sixty"_s,  u"seventy"_s, u"eighty"_s, u"ninety"_s};
    QString word = text.toLower();
    word.remove(QLatin1Char('-')).remove(QLatin1Char(' '));
    if (const auto unit = unitNames().indexOf(word); unit > 0)
        return static_cast<int>(unit);
    for (int i = 0; i < tens.size(); ++i) {
        if (!word.startsWith(tens[i]))
            continue;
        const QString rest = word.mid(tens[i].size());
        const auto unit = rest.isEmpty() ? 0 : unitNames().indexOf(rest);
        return unit >= 0 && unit < 10 ? std::optional(10 * (i + 2) + static_cast<int>(unit))
                                      : std::nullopt;
    }
    return std::nullopt;
}

std::optional<HeadingNumber> parseSpelledWithWord(const QString &text)
{
    static const QRegularExpression pattern(
        u"^(?<word>\\p{L}{4,9})\\h+(?<number>[A-Za-z]+(?:[- ][A-Za-z]+)?)(?:[.:]?\\h+|[.:]?$)"_s);
    const auto match = pattern.match(text);
    const auto word = words().value(match.captured(u"word"_s).toLower(), HeadingNumber::Word::None);
    if (!match.hasMatch() || word == HeadingNumber::Word::None)
        return std::nullopt;
    const QString number = match.captured(u"number"_s);
    for (const QString &form : {number, number.section(QLatin1Char(' '), 0, 0)}) {
        if (const auto value = spelledValue(form)) {
            const qsizetype end = match.capturedStart(u"number"_s) + form.size();
            const qsizetype length = form == number ? match.capturedLength() : end + 1;
            return HeadingNumber{{QString::number(*value)}, word, true, false, false, length};
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<int> HeadingNumber::ranks() const
{
    std::vector<int> result;
    for (const QString &part : parts) {
        bool isNumber = false;
        const int value = part.toInt(&isNumber);
        if (isNumber)
            result.push_back(value);
        else if (part.size() == 1 && !(isRoman && result.empty()))
            result.push_back(letterRank + letterValue(part).value_or(0));
        else
            result.push_back(romanValue(part).value_or(0));
    }
    return result;
}

std::optional<HeadingNumber> HeadingNumber::parse(const QString &text)
{
    const QString head = text.left(examinedLength);
    const auto match = numberPattern().match(head);
    // A single component with letters right behind it is the beginning of a word.
    const bool isWord = match.hasCaptured(u"glued"_s) &&
                        !match.capturedView(u"number"_s).contains(QLatin1Char('.'));
    if (!match.hasMatch() || isWord)
        return parseSpelledWithWord(head);
    HeadingNumber number;
    if (match.hasCaptured(u"word"_s)) {
        number.word = words().value(match.captured(u"word"_s).toLower(), Word::None);
        if (number.word == Word::None)
            return std::nullopt;
    } else if (match.hasCaptured(u"sign"_s)) {
        number.word = Word::Section;
    }
    number.parts = match.captured(u"number"_s).split(QLatin1Char('.'));
    // A roman number of several letters must be one; a lone letter is decided by its neighbours.
    const QString &first = number.parts.front();
    if (first.size() > 1 && !first.front().isDigit() && !romanValue(first))
        return std::nullopt;
    number.isAmbiguous = number.word == Word::None && number.parts.size() == 1 &&
                         !first.front().isDigit() && match.captured(u"mark"_s).isEmpty();
    number.length = match.capturedLength();
    return number;
}

std::optional<HeadingNumber> HeadingNumber::parseWhole(const QString &text)
{
    auto number = parse(text);
    return number && number->length >= text.size() ? number : std::nullopt;
}

std::optional<HeadingNumber> HeadingNumber::parseSpelled(const QString &text)
{
    const auto value = text.size() < examinedLength ? spelledValue(text) : std::nullopt;
    if (!value)
        return std::nullopt;
    return HeadingNumber{{QString::number(*value)}, Word::None, true, false, false, text.size()};
}

HeadingNumber::Word HeadingNumber::parseWord(const QString &text)
{
    return text.size() < 12 ? words().value(text.toLower(), Word::None) : Word::None;
}

std::optional<int> HeadingNumber::romanValue(const QString &text)
{
    static const QRegularExpression pattern(u"^(?=.)(C{0,3})(XC|XL|L?X{0,3})(IX|IV|V?I{0,3})$"_s);
    if (!pattern.match(text).hasMatch())
        return std::nullopt;
    static const std::array<std::pair<char16_t, int>, 5> values{
        {{u'I', 1}, {u'V', 5}, {u'X', 10}, {u'L', 50}, {u'C', 100}}};
    int sum = 0;
    int previous = 0;
    for (auto it = text.crbegin(); it != text.crend(); ++it) {
        for (const auto &[letter, value] : values) {
            if (*it != letter)
                continue;
            sum += value < previous ? -value : value;
            previous = value;
        }
    }
    return sum;
}

std::optional<int> HeadingNumber::letterValue(const QString &text)
{
    if (text.size() != 1 || text.front() < QLatin1Char('A') || text.front() > QLatin1Char('Z'))
        return std::nullopt;
    return text.front().unicode() - u'A' + 1;
}

} // namespace Tavrin
