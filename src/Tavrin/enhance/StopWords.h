// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

namespace Tavrin
{

/// The lemmas that are keywords of no entry, from the library's resource "stop_words.txt": one a
/// line, in lowercase. Empty, with a line on standard error, if the resource can't be read.
QStringList readStopWords();

} // namespace Tavrin
