// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

namespace Tavrin::NumberedSequence
{

/// A number met in document order, and how much speaks for it.
struct Member {
    std::vector<int> ranks;
    int weight = 1;
};

/// The positions of the heaviest subsequence whose numbers strictly ascend (1 < 1.1 < 1.2 < 2),
/// in order. Weighted longest increasing subsequence with a binary indexed tree (P. M. Fenwick,
/// 1994): n log n.
std::vector<std::size_t> heaviest(const std::vector<Member> &members);

} // namespace Tavrin::NumberedSequence
