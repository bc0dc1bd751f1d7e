// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>

namespace Tavrin
{

/// What stands beside the search field.
class BrowserMatchesLabelTransformer
{
public:
    /// "12 matches" for a list of that many, "No matches" without one; in the user's language.
    static QString transformedValue(std::optional<qsizetype> count);
};

} // namespace Tavrin
