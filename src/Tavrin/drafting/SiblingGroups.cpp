// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/SiblingGroups.h>

namespace Tavrin
{

SiblingGroups::SiblingGroups(const std::vector<DraftItem> &items)
    : parent(items.size(), noParent), children(items.size() + 1)
{
    std::vector<int> path;
    for (size_t i = 0; i < items.size(); ++i) {
        while (!path.empty() && items[static_cast<size_t>(path.back())].depth >= items[i].depth)
            path.pop_back();
        if (!path.empty())
            parent[i] = path.back();
        const size_t group = path.empty() ? items.size() : static_cast<size_t>(path.back());
        children[group].push_back(static_cast<int>(i));
        path.push_back(static_cast<int>(i));
    }
}

} // namespace Tavrin
