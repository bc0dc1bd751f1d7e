// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

#include <Tavrin/CoreExport.h>

/// What a search asks of one text.
namespace Tavrin::EntryText
{

/// Punctuation, white space and line ends.
bool isSeparator(QChar character);

/// User-perceived characters: grapheme clusters (UAX 29). Linear, and cheap for text without
/// combining marks.
TAVRIN_CORE_EXPORT qsizetype characterCount(QStringView text);

/// Whether a term occurs in a text from which punctuation, white space and line ends have been
/// removed. The term is used as it is.
bool containsWithoutSeparators(QStringView text, QStringView term);

/// The text in lower case. Reuses the memory of `folded`, and is quick for ASCII.
void foldInto(QString &folded, const QString &text);

/// Words (UAX 29) and how often each occurs, in the order of first occurrence.
std::vector<std::pair<QString, int>> simpleWordFrequencies(const QString &text);

} // namespace Tavrin::EntryText
