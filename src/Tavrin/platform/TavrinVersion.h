// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// The version of the library that runs, which may be later than the one a host was built with.
/// Major and minor as one number, 1.0 for example: what hosts compare. Tenths count on, so a minor
/// version is one digit.
extern TAVRIN_CORE_EXPORT const double TavrinVersionNumber;

/// The whole version as people write it, "1.0.0" for example. Not to be used before main() begins.
extern TAVRIN_CORE_EXPORT const QString TavrinVersionString;

} // namespace Tavrin
