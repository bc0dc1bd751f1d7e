// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace Tavrin
{

/// A boolean as maps write it: "1" or "0", and nothing else.
enum class XMLBoolean { False, True };

inline QString textForm(XMLBoolean value)
{
    return value == XMLBoolean::True ? QStringLiteral("1") : QStringLiteral("0");
}

inline std::optional<XMLBoolean> xmlBooleanFromText(QStringView text)
{
    if (text == u"1")
        return XMLBoolean::True;
    if (text == u"0")
        return XMLBoolean::False;
    return std::nullopt;
}

} // namespace Tavrin
