// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <array>
#include <string_view>

namespace Tavrin::English
{

/// A word as the lexicon spells it, and what its spelling tells besides.
///
/// The folded form is in lowercase, with straight apostrophes and hyphens, in UTF-8. A word that
/// is longer than any dictionary's is cut: it matches nothing and still has its ending.
class WordForm
{
public:
    explicit WordForm(QStringView word);

    std::string_view folded() const { return {m_bytes.data(), m_length}; }

    bool isCapitalized() const { return m_startsWithCapital; }
    /// Two letters or more, and all of them capitals.
    bool isAllCapitals() const { return m_letters > 1 && m_capitals == m_letters; }
    /// A few capitals. An "S" at their end is rarely a plural's.
    bool isAcronym() const { return isAllCapitals() && m_letters <= longestAcronym; }
    bool isLowercase() const { return m_capitals == 0 && m_letters > 0; }
    /// Neither letter nor digit.
    bool isSymbol() const { return m_letters == 0 && m_digits == 0; }
    /// Digits, with the marks that numbers are written with.
    bool isNumeral() const { return m_letters == 0 && m_digits > 0; }
    bool startsWithDigit() const { return m_startsWithDigit; }
    /// Digits with a unit or exponent behind them: "10mm", "1.36e". Not "2nd", "80s" or "3D".
    bool isMeasure() const;
    /// Several capitals of I, V and X: "IV".
    bool isRomanNumeral() const;
    /// Spelled as a programmer spells: an underscore, a capital after a small letter, digits
    /// among letters.
    bool isIdentifier() const;
    bool isHyphenated() const { return m_isHyphenated; }
    /// Has letters that no European alphabet in Latin script has.
    bool isInOtherScript() const { return m_isInOtherScript; }
    /// An address of mail or of the web.
    bool isAddress() const;

private:
    static constexpr int longestAcronym = 4;

    void append(char32_t character);
    void appendByte(char32_t byte);
    void note(char32_t original);

    std::array<char, 48> m_bytes;
    std::size_t m_length = 0;
    int m_letters = 0;
    int m_capitals = 0;
    int m_digits = 0;
    bool m_startsWithCapital = false;
    bool m_startsWithDigit = false;
    bool m_hasUnderscore = false;
    bool m_hasInnerCapital = false;
    bool m_isHyphenated = false;
    bool m_isInOtherScript = false;
    bool m_afterSmallLetter = false;
};

} // namespace Tavrin::English
