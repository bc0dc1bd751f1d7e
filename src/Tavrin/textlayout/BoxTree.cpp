// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/BoxTree.h>

#include <utility>

namespace Tavrin
{

BoxTree::BoxTree(std::vector<CellBox> boxes)
{
    if (boxes.empty())
        return;
    m_levels.push_back(std::move(boxes));
    while (m_levels.back().size() > fanOut) {
        const std::vector<CellBox> &lower = m_levels.back();
        std::vector<CellBox> upper((lower.size() + fanOut - 1) / fanOut);
        for (size_t i = 0; i < lower.size(); ++i)
            upper[i / fanOut].unite(lower[i]);
        m_levels.push_back(std::move(upper));
    }
}

} // namespace Tavrin
