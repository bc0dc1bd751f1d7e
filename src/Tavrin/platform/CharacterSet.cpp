// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/CharacterSet.h>

namespace Tavrin::CharacterSet
{

bool isNewline(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x0A && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

bool isWhiteSpace(QChar character)
{
    return character.unicode() == 0x09 || character.category() == QChar::Separator_Space;
}

bool isWhiteSpaceOrNewline(QChar character)
{
    return isWhiteSpace(character) || isNewline(character);
}

bool isPunctuation(QChar character)
{
    return character.isPunct();
}

} // namespace Tavrin::CharacterSet
