// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

namespace Tavrin
{

/// Whether a score comes before another: the greater first, and those that are no numbers last,
/// which a plain comparison would leave without any order.
inline bool isBetterScore(double a, double b)
{
    return std::isnan(b) ? !std::isnan(a) : a > b;
}

/// The same for whatever has a score.
inline constexpr auto byScore = [](const auto &a, const auto &b) {
    return isBetterScore(a.score, b.score);
};

} // namespace Tavrin
