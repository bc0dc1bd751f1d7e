// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

namespace Tavrin
{

/// The number of characters as a reader counts them: extended grapheme clusters (UAX 29).
qsizetype characterCount(QStringView text);

} // namespace Tavrin
