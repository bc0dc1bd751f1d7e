// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecURL.h>

#include <Tavrin/platform/DecimalForm.h>

#include <QRegularExpression>
#include <QStringDecoder>

namespace Tavrin::SpecURL
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto subDelimiters = "!$&'()*+,;=";

/// The text as it stands if it is no sound Unicode, which has no encoding.
QString encoded(const QString &text, const QByteArray &alsoAllowed)
{
    if (!text.isValidUtf16())
        return text;
    return QString::fromLatin1(text.toUtf8().toPercentEncoding(subDelimiters + alsoAllowed));
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// The text without its percent-encoding, or as it stands if that is no sound UTF-8.
QString decoded(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    for (qsizetype at = bytes.indexOf('%'); at >= 0; at = bytes.indexOf('%', at + 1)) {
        if (at + 2 >= bytes.size() || !isHexDigit(bytes[at + 1]) || !isHexDigit(bytes[at + 2]))
            return text;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString result = decoder(QByteArray::fromPercentEncoding(bytes));
    return decoder.hasError() ? text : result;
}

} // namespace

QString shortForm(const QString &label)
{
    return prefix + encoded(label, ":[]");
}

bool isValidBase(const QString &shortForm)
{
    static const QRegularExpression host(u"^spec://(?:[^:\\[\\]]*|\\[[^\\[\\]]*\\])(?::\\d*)?$"_s);
    return host.match(shortForm).hasMatch();
}

QString appending(const QString &url, const QString &component)
{
    return url + u'/' + encoded(component, ":@/");
}

std::optional<QStringList> components(const QString &text)
{
    if (!text.startsWith(prefix))
        return std::nullopt;
    const QString rest = decoded(text).mid(prefix.size());
    return rest.isEmpty() ? QStringList() : rest.split(u'/');
}

bool hasReversedLines(const QString &text)
{
    const auto parts = components(text);
    if (!parts || parts->size() < 5)
        return false;
    const auto lower = parseInteger((*parts)[3]);
    const auto upper = parseInteger((*parts)[4]);
    return lower && upper && *upper < *lower;
}

} // namespace Tavrin::SpecURL
