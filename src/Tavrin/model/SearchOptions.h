// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFlags>

namespace Tavrin
{

/// How a search over entries compares. The integers are part of what hosts store.
///
/// They combine as flags; no flag at all is the usual search.
enum class SearchOption {
    /// Compare as given; otherwise both sides are lower-cased.
    ///
    /// Lower-casing follows Unicode, and leaves diacritics as they are.
    CaseSensitive = 1,
    /// The whole search text is one term; otherwise it is split at white space.
    MatchEntireString = 2,
};
/// Any of the options together, "{}" for none.
Q_DECLARE_FLAGS(SearchOptions, SearchOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(SearchOptions)

} // namespace Tavrin
