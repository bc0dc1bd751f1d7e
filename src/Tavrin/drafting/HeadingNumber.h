// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Tavrin
{

/// The number in front of a heading: "4.2.1", "A.3", "Chapter 3", "Appendix B", "§ 4.2", "IV".
struct HeadingNumber {
    /// The word in front of it, in whichever language.
    enum class Word { None, Chapter, Appendix, Part, Section };

    /// The components as printed, spelled numbers in digits: {"4", "2", "1"}, {"A", "3"}.
    QStringList parts;
    Word word = Word::None;
    /// Written out ("CHAPTER TWELVE").
    bool isSpelled = false;
    /// A letter or a roman number with nothing to tell it from a word ("A First Impression").
    bool isAmbiguous = false;
    /// The first component is a roman number even where it is one letter, as its neighbours tell.
    bool isRoman = false;
    /// How much of the text it takes, what parts it from the title included.
    qsizetype length = 0;

    /// "4.2.1".
    QString text() const { return parts.join(QLatin1Char('.')); }
    /// The rank that letters begin above; no document counts so far.
    static constexpr int letterRank = 10000;
    /// Sorts as the headings do: letters come after all numbers.
    std::vector<int> ranks() const;

    /// The number that a text begins with. Looks at the first 80 units alone.
    static std::optional<HeadingNumber> parse(const QString &text);
    /// A text that is nothing but such a number. A spelled one counts with its word alone.
    static std::optional<HeadingNumber> parseWhole(const QString &text);
    /// A number alone on its line, spelled out, below a line that holds the word.
    static std::optional<HeadingNumber> parseSpelled(const QString &text);
    /// Nothing but the word ("CHAPTER").
    static Word parseWord(const QString &text);

    /// The value of a roman number in capitals; nothing if it isn't one in normal form.
    static std::optional<int> romanValue(const QString &text);
    /// 1 for "A" and so on; nothing for anything but one capital.
    static std::optional<int> letterValue(const QString &text);

    friend bool operator==(const HeadingNumber &, const HeadingNumber &) = default;
};

} // namespace Tavrin
