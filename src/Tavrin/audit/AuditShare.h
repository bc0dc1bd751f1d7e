// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

namespace Tavrin
{

/// How many of a number of entries are covered.
///
/// Shares add up: a whole is the sum of its parts.
struct AuditShare {
    int covered = 0;
    int all = 0;

    /// Rounded down to a tenth, so that 100 means all of them; 100 where there is nothing to cover.
    double percent() const { return all == 0 ? 100 : std::floor(1000.0 * covered / all) / 10; }

    /// Counts another part to this one. No entry may be in both.
    AuditShare &operator+=(const AuditShare &other)
    {
        covered += other.covered;
        all += other.all;
        return *this;
    }
    friend bool operator==(const AuditShare &, const AuditShare &) = default;
};

} // namespace Tavrin
