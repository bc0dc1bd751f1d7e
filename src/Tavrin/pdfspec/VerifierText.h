// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// How a candidate file is recognised: by the words of its first page.
namespace Tavrin::VerifierText
{

/// Runs of Unicode word characters, in order and as written.
QStringList words(const QString &text);

/// Whether two texts have the same number of words and each word of one occurs in the other;
/// order does not count, and repetition only through the number.
bool match(const QStringList &page, const QStringList &verifier);

} // namespace Tavrin::VerifierText
