// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/AssociatedEntries.h>

#include <algorithm>

namespace Tavrin
{

AssociatedEntries::AssociatedEntries(const EntryTable &entries)
{
    for (const auto &entry : entries) {
        if (!isTextual(entry->type()))
            continue;
        m_positions[entry->index()].push_back(m_entries.size());
        m_entries.push_back(entry);
    }
}

std::vector<Specification::EntryPtr> AssociatedEntries::of(const std::vector<int> &index) const
{
    std::vector<std::size_t> found;
    const auto add = [&found](const std::vector<std::size_t> &positions) {
        found.insert(found.end(), positions.begin(), positions.end());
    };
    std::vector<int> ancestor = index;
    while (!ancestor.empty()) {
        ancestor.pop_back();
        if (const auto at = m_positions.find(ancestor); at != m_positions.end())
            add(at->second);
    }
    // What begins with a number follows it in the order of numbers.
    for (auto at = m_positions.upper_bound(index); at != m_positions.end(); ++at) {
        const auto &descendant = at->first;
        if (descendant.size() <= index.size() ||
            !std::equal(index.begin(), index.end(), descendant.begin()))
            break;
        add(at->second);
    }
    std::sort(found.begin(), found.end());
    std::vector<Specification::EntryPtr> result;
    result.reserve(found.size());
    for (const std::size_t position : found)
        result.push_back(m_entries[position]);
    return result;
}

} // namespace Tavrin
