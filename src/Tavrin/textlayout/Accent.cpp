// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/Accent.h>

#include <QString>

#include <algorithm>
#include <array>
#include <cmath>

namespace Tavrin
{

namespace
{

struct Accent {
    char32_t spacing;
    char16_t combining;
};
constexpr std::array<Accent, 16> accents{{
    {U'`', 0x300},
    {U'\u00b4', 0x301},
    {U'^', 0x302},
    {U'\u02c6', 0x302},
    {U'~', 0x303},
    {U'\u02dc', 0x303},
    {U'\u00af', 0x304},
    {U'\u02c9', 0x304},
    {U'\u02d8', 0x306},
    {U'\u02d9', 0x307},
    {U'\u00a8', 0x308},
    {U'\u02da', 0x30a},
    {U'\u02dd', 0x30b},
    {U'\u02c7', 0x30c},
    {U'\u00b8', 0x327},
    {U'\u02db', 0x328},
}};

char16_t combiningAccent(char32_t character)
{
    // Asked for every glyph of a page, and most are letters.
    if (character < 0xa8 && character != U'`' && character != U'^' && character != U'~')
        return u'\0';
    const auto found = std::find_if(accents.begin(), accents.end(), [&](const Accent &accent) {
        return accent.spacing == character;
    });
    return found == accents.end() ? u'\0' : found->combining;
}

/// The letter to put the accent on; 0 for all that is no letter.
char16_t baseLetter(char32_t character)
{
    if (character == U'\u0131')
        return u'i';
    if (character == U'\u0237')
        return u'j';
    return character < 0x10000 && QChar::isLetter(character) ? static_cast<char16_t>(character)
                                                             : u'\0';
}

/// The accent's middle is over the letter, and not far above it.
bool isOver(const LayoutGlyph &accent, const LayoutGlyph &letter)
{
    constexpr float furthest = 0.45f;
    const float middle = (accent.start + accent.end) / 2;
    return middle > letter.start && middle < letter.end &&
           std::abs(accent.baseline - letter.baseline) < furthest * letter.size;
}

} // namespace

bool isAccent(char32_t character)
{
    return combiningAccent(character) != 0;
}

char32_t composedCharacter(const LayoutGlyph &a, const LayoutGlyph &b)
{
    const bool first = isAccent(a.character);
    const LayoutGlyph &accent = first ? a : b;
    const LayoutGlyph &letter = first ? b : a;
    const char16_t mark = combiningAccent(accent.character);
    const char16_t base = baseLetter(letter.character);
    if (!mark || !base || !isOver(accent, letter))
        return 0;
    const QString composed =
        (QString(QChar(base)) + QChar(mark)).normalized(QString::NormalizationForm_C);
    return composed.size() == 1 ? composed.front().unicode() : 0;
}

} // namespace Tavrin
