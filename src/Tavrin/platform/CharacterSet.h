// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

/// Sets of characters by Unicode general category, as predicates on UTF-16 units.
///
/// Every white space and nearly every punctuation character of Unicode lies in the Basic
/// Multilingual Plane; a surrogate belongs to none of these sets.
namespace Tavrin::CharacterSet
{

/// White space and line ends: categories Z*, tab to carriage return, and next line (U+0085).
TAVRIN_CORE_EXPORT bool isWhiteSpaceOrNewline(QChar character);

/// White space without line ends: category Zs and the tab.
TAVRIN_CORE_EXPORT bool isWhiteSpace(QChar character);

/// A line end: U+000A to U+000D, U+0085, U+2028 and U+2029.
TAVRIN_CORE_EXPORT bool isNewline(QChar character);

/// Punctuation: categories P*. Symbols such as "+" and "=" are none.
TAVRIN_CORE_EXPORT bool isPunctuation(QChar character);

} // namespace Tavrin::CharacterSet
