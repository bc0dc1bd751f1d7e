// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/StyledTextWriter.h>

#include <Tavrin/platform/SystemFont.h>

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>
#include <cmath>

namespace Tavrin
{

namespace
{

/// What text of normal size needs to be read with ease (WCAG 2.1, 1.4.3).
constexpr double readableContrast = 4.5;

/// Relative luminance (WCAG 2.1, definitions).
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

bool isTypewriter(const QString &family)
{
    static const std::array<QLatin1StringView, 5> parts{
        QLatin1StringView("courier"), QLatin1StringView("mono"), QLatin1StringView("typewriter"),
        QLatin1StringView("consol"), QLatin1StringView("cmtt")};
    return std::any_of(parts.begin(), parts.end(), [&family](QLatin1StringView part) {
        return family.contains(part, Qt::CaseInsensitive);
    });
}

} // namespace

StyledTextWriter::StyledTextWriter(const QFont &font, const QPalette &palette)
    : m_font(font), m_palette(palette)
{
}

void StyledTextWriter::insert(QTextCursor &cursor, const StyledText &text) const
{
    cursor.beginEditBlock();
    for (const StyledText::Run &run : text.runs()) {
        cursor.insertText(text.string().mid(run.range.location, run.range.length),
                          format(run.attributes));
    }
    cursor.endEditBlock();
}

QTextCharFormat StyledTextWriter::format(const TextAttributes &attributes) const
{
    QTextCharFormat format;
    if (attributes.font)
        applyFont(format, *attributes.font);
    if (attributes.link) {
        format.setAnchor(true);
        format.setAnchorHref(*attributes.link);
        format.setForeground(m_palette.color(QPalette::Link));
        format.setFontUnderline(true);
    } else if (attributes.foregroundColor && isColor(*attributes.foregroundColor)) {
        format.setForeground(QColor::fromRgb(*attributes.foregroundColor));
    }
    return format;
}

void StyledTextWriter::applyFont(QTextCharFormat &format, const TextFont &font) const
{
    if (isTypewriter(font.family)) {
        format.setFontFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
    }
    if (font.pointSize > 0 && font.pointSize != smallFontSize) {
        format.setFontPointSize(QFontInfo(m_font).pointSizeF() * font.pointSize / smallFontSize);
    }
    if (font.isBold())
        format.setFontWeight(QFont::Bold);
    if (font.isItalic())
        format.setFontItalic(true);
}

bool StyledTextWriter::isColor(QRgb color) const
{
    return (color & RGB_MASK) != 0 &&
           contrast(QColor::fromRgb(color), m_palette.color(QPalette::Base)) >= readableContrast;
}

} // namespace Tavrin
