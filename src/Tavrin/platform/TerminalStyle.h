// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Text in the escape sequences of a terminal (ECMA-48, SGR), set back to normal behind it.
///
/// In bold. Texts in styles are not put into one another: the end of the inner one ends both.
TAVRIN_CORE_EXPORT QString bold(const QString &text);
/// The same in red, for faults.
TAVRIN_CORE_EXPORT QString red(const QString &text);
/// The same in yellow, for warnings.
TAVRIN_CORE_EXPORT QString yellow(const QString &text);
/// The same in green.
TAVRIN_CORE_EXPORT QString green(const QString &text);
/// The same in cyan.
TAVRIN_CORE_EXPORT QString cyan(const QString &text);

/// The text alone, for a file.
TAVRIN_CORE_EXPORT QString withoutTerminalStyles(QString text);

} // namespace Tavrin
