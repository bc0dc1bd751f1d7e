// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/NumberedSequence.h>

#include <algorithm>
#include <cstdint>

namespace Tavrin
{

namespace
{

constexpr size_t none = SIZE_MAX;

struct Best {
    std::int64_t weight = 0;
    size_t member = none;
};

/// The heaviest chain that ends in a number below a rank.
class PrefixBest
{
public:
    explicit PrefixBest(size_t ranks) : m_tree(ranks + 1) {}

    Best below(size_t rank) const
    {
        Best best;
        for (size_t i = rank; i > 0; i &= i - 1) {
            if (m_tree[i].weight > best.weight)
                best = m_tree[i];
        }
        return best;
    }

    void add(size_t rank, Best chain)
    {
        for (size_t i = rank + 1; i < m_tree.size(); i += i & (~i + 1)) {
            if (chain.weight > m_tree[i].weight)
                m_tree[i] = chain;
        }
    }

private:
    std::vector<Best> m_tree;
};

} // namespace

std::vector<size_t> NumberedSequence::heaviest(const std::vector<Member> &members)
{
    std::vector<const std::vector<int> *> order;
    order.reserve(members.size());
    for (const Member &member : members)
        order.push_back(&member.ranks);
    const auto less = [](const auto *a, const auto *b) { return *a < *b; };
    std::sort(order.begin(), order.end(), less);
    const auto equal = [](const auto *a, const auto *b) { return *a == *b; };
    order.erase(std::unique(order.begin(), order.end(), equal), order.end());

    PrefixBest chains(order.size());
    std::vector<size_t> previous(members.size(), none);
    Best last;
    for (size_t i = 0; i < members.size(); ++i) {
        const auto place = std::lower_bound(order.begin(), order.end(), &members[i].ranks, less);
        const auto rank = static_cast<size_t>(place - order.begin());
        const Best before = chains.below(rank);
        previous[i] = before.member;
        const Best chain{before.weight + members[i].weight, i};
        chains.add(rank, chain);
        if (chain.weight > last.weight)
            last = chain;
    }
    std::vector<size_t> result;
    for (size_t i = last.member; i != none; i = previous[i])
        result.push_back(i);
    std::reverse(result.begin(), result.end());
    return result;
}

} // namespace Tavrin
