// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// A text of the system in the user's language, by Qt's installed translators; the English key
/// itself where there is no translation. `comment` is a note for translators and tells apart
/// equal texts with different meanings. Any thread.
///
/// Both are UTF-8. All texts are in the context "Tavrin", which is where a host's own translator
/// has to put what it wants said otherwise.
TAVRIN_CORE_EXPORT QString localized(const char *key, const char *comment);

} // namespace Tavrin
