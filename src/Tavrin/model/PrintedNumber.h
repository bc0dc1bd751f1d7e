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
TAVRIN_CORE_EXPORT QString number(const SpecificationEntry &entry);

/// Kind and number: "Section 4.2.1", "Part II"; the kind alone if there is no number.
TAVRIN_CORE_EXPORT QString name(const SpecificationEntry &entry);

} // namespace Tavrin::PrintedNumber
