// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/TextKey.h>

namespace Tavrin
{

namespace
{

bool isInvisible(QChar character)
{
    return character == QChar::SoftHyphen || character.category() == QChar::Other_Control ||
           character.category() == QChar::Other_Format;
}

} // namespace

QString TextKey::fold(const QString &text)
{
    QString key;
    QString rest;
    const QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    for (const QChar character : folded) {
        if (character.isLetterOrNumber() || character.isSurrogate())
            key += character;
        else if (!character.isSpace() && !character.isMark() && !isInvisible(character))
            rest += character;
    }
    return key.isEmpty() ? rest : key;
}

QString TextKey::clean(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (character.isSpace())
            result += QLatin1Char(' ');
        else if (!isInvisible(character))
            result += character;
    }
    return result.simplified();
}

QString TextKey::slug(const QString &text)
{
    constexpr qsizetype longest = 60;
    QString result;
    const QString folded =
        text.left(4 * longest).normalized(QString::NormalizationForm_KD).toLower();
    for (const QChar character : folded) {
        if (character.isMark() || character == QLatin1Char('\'') || character == QChar(0x2019))
            continue;
        if (character.isLetterOrNumber())
            result += character;
        else if (!result.isEmpty() && !result.endsWith(QLatin1Char('-')))
            result += QLatin1Char('-');
    }
    result.truncate(longest);
    while (result.endsWith(QLatin1Char('-')))
        result.chop(1);
    return result;
}

} // namespace Tavrin
