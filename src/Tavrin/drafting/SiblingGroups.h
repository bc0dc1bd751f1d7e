// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/drafting/DraftItem.h>

namespace Tavrin
{

/// Who stands below whom in a list of items in document order, by depth alone. Linear.
struct SiblingGroups {
    explicit SiblingGroups(const std::vector<DraftItem> &items);

    static constexpr int noParent = -1;

    /// For each item its parent, or `noParent`.
    std::vector<int> parent;
    /// For each item its children in order; the items without a parent come last.
    std::vector<std::vector<int>> children;

    const std::vector<int> &top() const { return children.back(); }
};

} // namespace Tavrin
