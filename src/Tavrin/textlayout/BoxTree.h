// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// Finds boxes by place. A bounding volume hierarchy over boxes in their given order: text in
/// reading order keeps neighbours together, so that nothing needs to be sorted.
class BoxTree
{
public:
    BoxTree() = default;
    explicit BoxTree(std::vector<CellBox> boxes);

    /// Calls back with the index of each box that touches the area, in ascending order, until
    /// the callback says false.
    template <class Callback>
    void forEach(const CellBox &area, Callback callback) const
    {
        if (!m_levels.empty())
            visit(m_levels.size() - 1, 0, area, callback);
    }

private:
    static constexpr size_t fanOut = 8;

    /// The top level is a single node, so recursion is as deep as there are levels.
    template <class Callback>
    bool visit(size_t level, size_t first, const CellBox &area, Callback &callback) const
    {
        const std::vector<CellBox> &boxes = m_levels[level];
        for (size_t i = first; i < boxes.size() && i < first + fanOut; ++i) {
            if (!boxes[i].intersects(area))
                continue;
            const bool goOn =
                level == 0 ? callback(i) : visit(level - 1, i * fanOut, area, callback);
            if (!goOn)
                return false;
        }
        return true;
    }

    /// From the boxes themselves up to a level of at most `fanOut`.
    std::vector<std::vector<CellBox>> m_levels;
};

} // namespace Tavrin
