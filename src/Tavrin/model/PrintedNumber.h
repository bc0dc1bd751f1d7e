// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/SpecificationEntry.h>

/// How entries are called in print, letters included: an index holds numbers alone, so that of
/// appendix A.3 says 9.3.
namespace Tavrin::PrintedNumber
{

/// "4.2.1", "A.3", "3-7", "Part II"; empty if the entry has none.
///
/// A label that looks like a number with letters, "A.3" or "Part II", is taken for what is printed;
/// else the number is made of the index.
TAVRIN_CORE_EXPORT QString number(const SpecificationEntry &entry);

/// Kind and number: "Section 4.2.1", "Part II"; the kind alone if there is no number.
///
/// The kind is in the user's language; a number that brings its own word, such as "Part II", stands
/// alone.
TAVRIN_CORE_EXPORT QString name(const SpecificationEntry &entry);

} // namespace Tavrin::PrintedNumber
