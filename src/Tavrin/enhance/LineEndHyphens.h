// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin
{

/// A text of printed lines without the hyphens that broke words at their ends: such a word stands
/// whole on the line where it began. A word that is written with a hyphen keeps it: "floating-" and
/// "point" are words and "floatingpoint" is none.
QString withoutLineEndHyphens(const QString &text, const LinguisticTagger &tagger);

} // namespace Tavrin
