// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// The kinds of referencable items. The integers are part of what hosts store.
enum class SpecificationEntryType { Section = 0, Chapter = 1, Figure = 2, Table = 3 };

/// The name of a kind in a map: "section".
///
/// Lower case, and English in every language. The inverse of entryTypeFromText().
TAVRIN_CORE_EXPORT QString textForm(SpecificationEntryType type);
/// The kind with exactly this name in a map.
///
/// Absent for anything else, "Section" included.
TAVRIN_CORE_EXPORT std::optional<SpecificationEntryType> entryTypeFromText(QStringView text);
/// The name of a kind for readers, capitalised and in the user's language: "Section".
TAVRIN_CORE_EXPORT QString description(SpecificationEntryType type);
/// Sections and chapters hold text; figures and tables interrupt it.
TAVRIN_CORE_EXPORT bool isTextual(SpecificationEntryType type);

} // namespace Tavrin
