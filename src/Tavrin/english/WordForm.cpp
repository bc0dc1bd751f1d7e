// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/WordForm.h>

#include <QChar>

#include <algorithm>

namespace Tavrin::English
{

namespace
{

/// Quotes and hyphens of print, as a typewriter has them.
char32_t typewritten(char32_t character)
{
    switch (character) {
    case U'\u2018':
    case U'\u2019':
    case U'\u02bc':
        return U'\'';
    case U'\u2010':
    case U'\u2011':
        return U'-';
    default:
        return character;
    }
}

} // namespace

WordForm::WordForm(QStringView word)
{
    for (qsizetype index = 0; index < word.size(); ++index) {
        char32_t character = word[index].unicode();
        if (word[index].isHighSurrogate() && index + 1 < word.size()) {
            character = QChar::surrogateToUcs4(word[index], word[index + 1]);
            ++index;
        }
        character = typewritten(character);
        note(character);
        append(character < 0x80 ? character : QChar::toLower(character));
    }
    m_isHyphenated = folded().size() > 2 && folded().find('-', 1) < folded().size() - 1;
}

bool WordForm::isIdentifier() const
{
    return m_hasUnderscore || m_hasInnerCapital ||
           (m_digits > 0 && m_letters > 0 && !m_startsWithDigit && !m_isHyphenated);
}

bool WordForm::isMeasure() const
{
    constexpr int longestUnit = 2;
    const std::string_view word = folded();
    if (!m_startsWithDigit || m_letters == 0 || m_letters > longestUnit || m_isHyphenated)
        return false;
    return !word.ends_with("st") && !word.ends_with("nd") && !word.ends_with("rd") &&
           !word.ends_with("th") && !word.ends_with('s') && !word.ends_with('d');
}

bool WordForm::isRomanNumeral() const
{
    return isAllCapitals() && folded().find_first_not_of("ivx") == std::string_view::npos;
}

bool WordForm::isAddress() const
{
    return folded().find('@') != std::string_view::npos ||
           folded().find("://") != std::string_view::npos || folded().starts_with("www.");
}

void WordForm::note(char32_t original)
{
    const bool ascii = original < 0x80;
    const bool capital = ascii ? original >= U'A' && original <= U'Z' : QChar::isUpper(original);
    const bool small = ascii ? original >= U'a' && original <= U'z' : QChar::isLower(original);
    const bool digit = ascii ? original >= U'0' && original <= U'9' : QChar::isDigit(original);
    const bool letter = capital || small || (!ascii && QChar::isLetter(original));
    if (m_length == 0) {
        m_startsWithCapital = capital;
        m_startsWithDigit = digit;
    }
    m_hasInnerCapital |= capital && m_afterSmallLetter;
    m_hasUnderscore |= original == U'_';
    m_isInOtherScript |= letter && original >= U'\u0370' && original < U'\uff00';
    m_letters += letter;
    m_capitals += capital;
    m_digits += digit;
    m_afterSmallLetter = small;
}

void WordForm::append(char32_t character)
{
    if (character < 0x80) {
        const bool capital = character >= U'A' && character <= U'Z';
        appendByte(capital ? character + 32 : character);
    } else if (character < 0x800) {
        appendByte(0xc0 | character >> 6);
        appendByte(0x80 | (character & 0x3f));
    } else {
        if (character < 0x10000) {
            appendByte(0xe0 | character >> 12);
        } else {
            appendByte(0xf0 | character >> 18);
            appendByte(0x80 | (character >> 12 & 0x3f));
        }
        appendByte(0x80 | (character >> 6 & 0x3f));
        appendByte(0x80 | (character & 0x3f));
    }
}

/// Past the end, the oldest half makes room: the ending is what unknown words are judged by.
void WordForm::appendByte(char32_t byte)
{
    if (m_length == m_bytes.size()) {
        std::copy(m_bytes.begin() + m_bytes.size() / 2, m_bytes.end(), m_bytes.begin());
        m_length /= 2;
    }
    m_bytes[m_length++] = static_cast<char>(byte);
}

} // namespace Tavrin::English
