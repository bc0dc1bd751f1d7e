// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// The shortest decimal text that reads back as the same double, with a fractional part: "72.0".
/// Numbers beyond 2^53 and below 1e-4 take an exponent.
TAVRIN_CORE_EXPORT QString decimalForm(double value);

/// A text that is wholly one finite decimal number: no white space, nothing behind it.
TAVRIN_CORE_EXPORT std::optional<double> parseDecimal(QStringView text);

/// A text that is wholly one decimal integer, with or without a sign.
TAVRIN_CORE_EXPORT std::optional<int> parseInteger(QStringView text);

} // namespace Tavrin
