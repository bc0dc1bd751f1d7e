// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <vector>

#include <Tavrin/platform/TextRange.h>

namespace Tavrin::English
{

/// One token; together they cover the text without gaps.
struct Token {
    enum class Kind : quint8 {
        Word,
        /// A hyphen with a word on either side and no blank between.
        Joiner,
        Punctuation,
        Symbol,
        /// A run of blanks, or one tab.
        Blank,
        /// One line end on its own.
        LineEnd,
        /// One of several line ends in a row.
        ParagraphBreak,
    };

    TextRange range;
    Kind kind = Kind::Word;
    /// A full stop, question or exclamation mark behind which a sentence ends, or the last line
    /// end before a paragraph.
    bool endsSentence = false;
};

/// Cuts a text where Unicode's default word boundaries lie (UAX 29), but for numbers ("4.2.1") and
/// contractions, which come as "do" and "n't", "page" and "'s".
std::vector<Token> tokenize(QStringView text);

} // namespace Tavrin::English
