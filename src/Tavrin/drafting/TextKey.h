// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// Texts reduced to what two prints of one heading have in common.
namespace Tavrin::TextKey
{

/// Letters and digits alone, case folded and compatibility forms taken apart (UAX 15, NFKD), so
/// that ligatures, quotes, dashes, small caps and letterspacing make no difference. A text
/// without any letter or digit ("++") keeps its other characters, without blanks.
QString fold(const QString &text);

/// Blanks collapsed, soft hyphens and control characters dropped.
QString clean(const QString &text);

/// A readable word for identifiers and labels: lower case letters and digits of the key, words
/// joined by "-", at most 60 units. Empty for a text without letters or digits.
QString slug(const QString &text);

} // namespace Tavrin::TextKey
