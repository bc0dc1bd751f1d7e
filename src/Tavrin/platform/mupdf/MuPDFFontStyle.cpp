// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFFontStyle.h>

#include <QRegularExpression>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// The words in which font names tell weight and slant.
const QRegularExpression &boldWords()
{
    static const QRegularExpression words(
        u"bold|black|heavy|demi|semib|medi(?!um)|(?:^|[-,])[Bb]d\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    return words;
}

const QRegularExpression &italicWords()
{
    static const QRegularExpression words(u"ital|obliq|slant|kursiv|(?:^|[-,])it\\b"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return words;
}

/// Computer Modern and its descendants tell the style in two letters behind the family's:
/// CMBX10, SFTI1000, LMRoman is spelled out.
const QRegularExpression &texName()
{
    static const QRegularExpression name(
        u"^(?:CM|SF|EC|TC|LM)(BX|B|SS?BX|SSDC|BXTI|BXSL|TI|SL|SSI|ITT|SLTT|MI|BSY|MIB|BI)(\\d+)$"_s);
    return name;
}

quint32 texTraits(const QString &letters)
{
    quint32 traits = 0;
    if (letters.contains(u'B') || letters == "SSDC"_L1)
        traits |= TextFont::Bold;
    if (letters.endsWith("TI"_L1) || letters.endsWith("SL"_L1) || letters == "SSI"_L1 ||
        letters == "ITT"_L1 || letters == "SLTT"_L1 || letters == "BI"_L1)
        traits |= TextFont::Italic;
    return traits;
}

QString withoutSubsetTag(const QString &name)
{
    static const QRegularExpression tag(u"^[A-Z]{6}\\+"_s);
    return QString(name).remove(tag);
}

QString withoutStyle(const QString &name)
{
    static const QRegularExpression style(
        u"[-,](?:(?:Ultra|Extra|Semi|Demi)?(?:Bold|Black|Heavy|Light|Thin|Demi|Medi(?:um)?|Regu(?:"
        u"lar)?|"
        "Roman|Book|Ital(?:ic)?|Obli(?:que)?|Slanted|Cond(?:ensed)?|Narrow|It|Bd|MT|PS)+)+$"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QString family = QString(name).remove(style);
    return family.isEmpty() ? name : family;
}

} // namespace

TextFont fontStyleFromName(const QString &fullName)
{
    const QString name = withoutSubsetTag(fullName);
    TextFont font;
    font.family = withoutStyle(name);
    if (const auto tex = texName().match(name); tex.hasMatch()) {
        font.traits = texTraits(tex.captured(1));
        return font;
    }
    if (boldWords().match(name).hasMatch())
        font.traits |= TextFont::Bold;
    if (italicWords().match(name).hasMatch())
        font.traits |= TextFont::Italic;
    return font;
}

TextFont fontStyle(fz_context *context, fz_font *font)
{
    TextFont style = fontStyleFromName(QString::fromUtf8(fz_font_name(context, font)));
    if (fz_font_is_bold(context, font))
        style.traits |= TextFont::Bold;
    if (fz_font_is_italic(context, font))
        style.traits |= TextFont::Italic;
    return style;
}

} // namespace Tavrin
