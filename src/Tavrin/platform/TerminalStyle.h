// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Text in the escape sequences of a terminal (ECMA-48, SGR), set back to normal behind it.
TAVRIN_CORE_EXPORT QString bold(const QString &text);
TAVRIN_CORE_EXPORT QString red(const QString &text);
TAVRIN_CORE_EXPORT QString yellow(const QString &text);
TAVRIN_CORE_EXPORT QString green(const QString &text);
TAVRIN_CORE_EXPORT QString cyan(const QString &text);

/// The text alone, for a file.
TAVRIN_CORE_EXPORT QString withoutTerminalStyles(QString text);

} // namespace Tavrin
