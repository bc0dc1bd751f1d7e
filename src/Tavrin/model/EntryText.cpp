// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/EntryText.h>

#include <Tavrin/platform/CharacterSet.h>

#include <QTextBoundaryFinder>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace Tavrin::EntryText
{

namespace
{

bool isSeparatorByCategory(QChar character)
{
    return CharacterSet::isPunctuation(character) || CharacterSet::isWhiteSpaceOrNewline(character);
}

/// Units that are a character by themselves, whatever stands around them: all below the first
/// combining mark, save the line feed of a pair; general punctuation and symbols without joiners
/// and marks; the main block of ideographs. Nearly all text is made of them alone.
bool isWholeCharacter(QChar unit)
{
    const char16_t code = unit.unicode();
    if (code < 0x300)
        return code != u'\r';
    return (code >= 0x200e && code < 0x20d0) || (code > 0x20ff && code < 0x2c00) ||
           (code >= 0x4e00 && code <= 0x9fff);
}

/// Longer terms are not tried at every occurrence of their first character.
constexpr qsizetype maximumInPlace = 64;

bool matchesSkippingSeparators(QStringView text, QStringView term)
{
    qsizetype matched = 0;
    for (qsizetype at = 0; at < text.size() && matched < term.size(); ++at) {
        if (text[at] == term[matched])
            ++matched;
        else if (!isSeparator(text[at]))
            return false;
    }
    return matched == term.size();
}

} // namespace

bool isSeparator(QChar character)
{
    // Asked at nearly every character of every text, nearly all of which are ASCII.
    static const auto ascii = [] {
        std::array<bool, 0x80> separators{};
        for (std::size_t code = 0; code < separators.size(); ++code)
            separators[code] = isSeparatorByCategory(QChar(static_cast<char16_t>(code)));
        return separators;
    }();
    return character.unicode() < ascii.size() ? ascii[character.unicode()]
                                              : isSeparatorByCategory(character);
}

qsizetype characterCount(QStringView text)
{
    if (std::all_of(text.cbegin(), text.cend(), isWholeCharacter))
        return text.size();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

bool containsWithoutSeparators(QStringView text, QStringView term)
{
    qsizetype at = term.isEmpty() ? -1 : text.indexOf(term.front());
    if (at < 0 || std::any_of(term.cbegin(), term.cend(), isSeparator))
        return false;
    if (term.size() > maximumInPlace) {
        QVarLengthArray<QChar, 256> kept;
        std::remove_copy_if(text.cbegin(), text.cend(), std::back_inserter(kept), isSeparator);
        return QStringView(kept.constData(), kept.size()).contains(term);
    }
    for (; at >= 0; at = text.indexOf(term.front(), at + 1)) {
        if (matchesSkippingSeparators(text.sliced(at), term))
            return true;
    }
    return false;
}

void foldInto(QString &folded, const QString &text)
{
    char16_t seen = 0;
    for (const QChar unit : text)
        seen |= unit.unicode();
    if (seen >= 0x80) {
        folded = text.toLower();
        return;
    }
    folded.resize(text.size());
    std::transform(text.cbegin(), text.cend(), folded.begin(), [](QChar unit) {
        const char16_t code = unit.unicode();
        return QChar(char16_t(code + (code >= u'A' && code <= u'Z' ? 0x20 : 0)));
    });
}

std::vector<std::pair<QString, int>> simpleWordFrequencies(const QString &text)
{
    std::vector<std::pair<QString, int>> frequencies;
    QHash<QString, std::size_t> positions;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    for (qsizetype begin = 0, end = 0; (end = finder.toNextBoundary()) >= 0; begin = end) {
        // A boundary stands between words and on both sides of what is none.
        finder.setPosition(begin);
        const bool isWord = finder.boundaryReasons() & QTextBoundaryFinder::StartOfItem;
        finder.setPosition(end);
        if (!isWord)
            continue;
        const QString word = text.sliced(begin, end - begin);
        const auto known = positions.constFind(word);
        const std::size_t position =
            known == positions.constEnd() ? frequencies.size() : known.value();
        if (position == frequencies.size()) {
            positions.insert(word, position);
            frequencies.emplace_back(word, 0);
        }
        ++frequencies[position].second;
    }
    return frequencies;
}

} // namespace Tavrin::EntryText
