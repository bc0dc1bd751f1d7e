// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/LineLabel.h>

#include <QChar>
#include <QString>

#include <algorithm>
#include <array>

namespace Tavrin
{

namespace
{

constexpr qsizetype longestNumber = 14;

bool isBullet(char32_t c)
{
    return c == U'\u2022' || c == U'\u2013' || c == U'\u2014' || c == U'-' || c == U'*' ||
           c == U'\u00b7' || c == U'\u2212' || c == U'\u25e6' || c == U'\u25aa' || c == U'\u25cf' ||
           c == U'\u2217' || c == U'\u22c4' || c == U'\u2023' || c == U'\u25a0' || c == U'\u2756';
}

/// One part of a number: digits, one letter with digits, or a roman numeral.
bool isNumberPart(QStringView part)
{
    if (part.isEmpty() || part.size() > 5)
        return false;
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto isRoman = [](QChar c) { return QStringView(u"ivxlcIVXLC").contains(c); };
    const QStringView digits = part.front().isLetter() ? part.sliced(1) : part;
    return std::all_of(digits.begin(), digits.end(), isDigit) ||
           std::all_of(part.begin(), part.end(), isRoman);
}

/// "4.2", "A-3.", "(iv)", "12)".
bool isNumber(QStringView text)
{
    if (text.startsWith(u'(') || text.startsWith(u'['))
        text = text.sliced(1);
    while (!text.isEmpty() && QStringView(u".):]").contains(text.back()))
        text.chop(1);
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != u'.' && text[i] != u'-')
            continue;
        if (!isNumberPart(text.sliced(start, i - start)))
            return false;
        start = i + 1;
    }
    return true;
}

QStringView withoutLabelWord(QStringView text)
{
    static constexpr std::array<QStringView, 10> words{
        u"Chapter", u"Section", u"Appendix", u"Annex",   u"Part",
        u"Figure",  u"Table",   u"Clause",   u"Article", u"Listing"};
    for (const QStringView word : words) {
        if (text.startsWith(word, Qt::CaseInsensitive))
            return text.sliced(word.size());
    }
    return text;
}

} // namespace

LineLabel lineLabel(const std::vector<char32_t> &characters)
{
    if (characters.size() == 1 && isBullet(characters.front()))
        return LineLabel::Label;
    const QString text =
        QString::fromUcs4(characters.data(), static_cast<qsizetype>(characters.size()));
    const QStringView number = withoutLabelWord(text);
    if (number.isEmpty() || number.size() > longestNumber || !isNumber(number))
        return LineLabel::None;
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    return plain ? LineLabel::Integer : LineLabel::Label;
}

} // namespace Tavrin
