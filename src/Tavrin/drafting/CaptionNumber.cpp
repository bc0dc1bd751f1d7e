// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/CaptionNumber.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

using Separator = CaptionNumber::Separator;

/// The word, the number and what parts it from the title; blanks are collapsed already.
const QRegularExpression &pattern()
{
    static const QRegularExpression expression(
        u"^(?<word>(?<figure>Figure|FIGURE|Fig\\.?|FIG\\.?|Abbildung|Abb\\.|Figura)|"
        "(?:Table|TABLE|Tab\\.|TAB\\.|Tabelle|Tabla|Tableau|Tabella)) ?"
        "(?<number>(?:[A-Z]?\\d{1,4}|[A-Z](?=[.\\-\\x{2010}-\\x{2013}]\\d))"
        "(?:[.\\-\\x{2010}-\\x{2013}]\\d{1,4})*|[IVXLC]{1,7})"
        "(?![\\w%)\\]])(?<separator> ?: ?|\\. ?| [\\-\\x{2010}-\\x{2015}] |[\\x{2013}-\\x{2015}]| |$)"_s);
    return expression;
}

Separator separatorOf(const QString &text)
{
    const QString mark = text.trimmed();
    if (mark.isEmpty())
        return Separator::None;
    if (mark == u":")
        return Separator::Colon;
    return mark == u"." ? Separator::Stop : Separator::Dash;
}

/// "3-7" and "A-3" in the form of headings, "3.7" and "A.3".
QString dotted(QString number)
{
    for (QChar &character : number) {
        if (character == u'-' || (character >= u'\u2010' && character <= u'\u2013'))
            character = u'.';
    }
    // "A3" of an appendix.
    if (number.size() > 1 && number[0].isUpper() && number[1].isDigit())
        number.insert(1, u'.');
    return number;
}

std::optional<HeadingNumber> parseNumber(const QString &printed)
{
    if (const auto roman = HeadingNumber::romanValue(printed)) {
        HeadingNumber number;
        number.parts = {QString::number(*roman)};
        return number;
    }
    HeadingNumber number;
    number.parts = dotted(printed).split(u'.', Qt::SkipEmptyParts);
    return number.parts.isEmpty() ? std::nullopt : std::optional(number);
}

} // namespace

std::optional<CaptionNumber> CaptionNumber::parse(const QString &text)
{
    const auto match = pattern().match(text.left(80));
    if (!match.hasMatch())
        return std::nullopt;
    const QString printed = match.captured(u"number");
    const auto number = parseNumber(printed);
    if (!number)
        return std::nullopt;
    CaptionNumber caption;
    const bool isFigure = !match.captured(u"figure").isEmpty();
    caption.type = isFigure ? SpecificationEntryType::Figure : SpecificationEntryType::Table;
    caption.label = (isFigure ? u"Figure "_s : u"Table "_s) + printed;
    caption.number = *number;
    caption.separator = separatorOf(match.captured(u"separator"));
    caption.word = match.captured(u"word");
    caption.length = match.capturedEnd();
    return caption;
}

} // namespace Tavrin
