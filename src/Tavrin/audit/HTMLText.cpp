// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/HTMLText.h>

#include <algorithm>
#include <cmath>

#include <Tavrin/platform/SystemFont.h>

namespace Tavrin::HTMLText
{

using namespace Qt::StringLiterals;

namespace
{

bool isTypewriter(const QString &family)
{
    static const QStringView signs[] = {u"Mono",   u"Courier", u"Typewriter", u"CMTT",
                                        u"Consol", u"LMTT",    u"SFTT"};
    return std::any_of(std::begin(signs), std::end(signs), [&](QStringView sign) {
        return family.contains(sign, Qt::CaseInsensitive);
    });
}

/// Black and grey are what a page shows as it likes.
bool isColorful(QRgb color)
{
    constexpr int shade = 48;
    const auto [low, high] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
    return high - low > shade;
}

QString sizeStyle(const TextFont &font)
{
    const double ratio = font.pointSize / smallFontSize;
    if (!(ratio > 0) || std::abs(ratio - 1) < 0.08)
        return {};
    return u"font-size:%1em"_s.arg(std::clamp(ratio, 0.7, 1.6), 0, 'f', 2);
}

/// Wraps the content in an element.
void wrap(QString &content, const QString &name, const QString &attributes = {})
{
    content = u'<' + name + attributes + u'>' + content + u"</"_s + name + u'>';
}

QString run(const TextAttributes &attributes, const QString &text, const LinkTarget &target)
{
    QString content = escaped(text);
    const TextFont font = attributes.font.value_or(TextFont());
    if (isTypewriter(font.family))
        wrap(content, u"code"_s);
    if (font.isItalic())
        wrap(content, u"i"_s);
    if (font.isBold())
        wrap(content, u"b"_s);
    const QString size = sizeStyle(font);
    const QString address = attributes.link ? target(*attributes.link) : QString();
    // A link has the colour of the page's links.
    const bool isColored =
        address.isEmpty() && attributes.foregroundColor && isColorful(*attributes.foregroundColor);
    if (isColored) {
        const QString name = QColor(*attributes.foregroundColor).name();
        wrap(content, u"span"_s,
             u" class=\"c\" style=\"--c:%1%2\""_s.arg(name,
                                                      size.isEmpty() ? QString() : u';' + size));
    } else if (!size.isEmpty()) {
        wrap(content, u"span"_s, u" style=\"%1\""_s.arg(size));
    }
    if (!address.isEmpty())
        wrap(content, u"a"_s, u" href=\"%1\""_s.arg(escaped(address)));
    return content;
}

} // namespace

QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size() + text.size() / 16);
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            result += "&amp;"_L1;
            break;
        case u'<':
            result += "&lt;"_L1;
            break;
        case u'>':
            result += "&gt;"_L1;
            break;
        case u'"':
            result += "&quot;"_L1;
            break;
        default:
            const bool isControl = (c.unicode() < 0x20 && c != u'\n' && c != u'\t') ||
                                   (c.unicode() >= 0x7f && c.unicode() < 0xa0);
            result += isControl ? QChar(QChar::ReplacementCharacter) : c;
        }
    }
    return result;
}

QString phrasing(const StyledText &text, const LinkTarget &target)
{
    QString html;
    for (const StyledText::Run &one : text.runs())
        html +=
            run(one.attributes, text.string().mid(one.range.location, one.range.length), target);
    return html;
}

} // namespace Tavrin::HTMLText
