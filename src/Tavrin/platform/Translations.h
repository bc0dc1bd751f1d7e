// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocale>
#include <QTranslator>

#include <memory>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Installs the translation of the system's own texts for the languages of a locale, the first
/// that there is; null where there is none, and for the C locale. The texts stay translated while
/// the translator lives, and texts already made stay as they are. Call from the main thread, with
/// an application object. A host that asks for nothing shows the English texts.
[[nodiscard]] TAVRIN_CORE_EXPORT std::unique_ptr<QTranslator>
installTranslations(const QLocale &locale);

} // namespace Tavrin
