// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What the texts of cells are searched and sorted by.
namespace Tavrin::CellText
{

/// Without case and diacritics: canonically decomposed, without nonspacing marks, case-folded.
QString folded(const QString &text);

/// Less than, equal to or greater than zero, as `a` comes before, with or behind `b`: by UTF-16
/// units, but for runs of ASCII digits, which go by their value. "4.9" comes before "4.10".
int compareNaturally(QStringView a, QStringView b);

} // namespace Tavrin::CellText
