// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>

#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin
{

/// Sorts pointers to entries by number: the first difference decides, and a beginning comes before
/// what it is the beginning of. Those without a number come last; equals stay as they stand.
template <typename Pointers>
void sortByNumber(Pointers &entries)
{
    std::stable_sort(entries.begin(), entries.end(), [](const auto &a, const auto &b) {
        if (a->index().empty() || b->index().empty())
            return !a->index().empty() && b->index().empty();
        return a->index() < b->index();
    });
}

} // namespace Tavrin
