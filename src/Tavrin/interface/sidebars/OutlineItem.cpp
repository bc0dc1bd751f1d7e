// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/OutlineItem.h>

namespace Tavrin
{

OutlineItem::OutlineItem(const HostPDFOutline &outline, int depth) : m_outline(outline)
{
    if (depth == maxDepth)
        return;
    const qsizetype count = outline.numberOfChildren();
    m_children.reserve(static_cast<std::size_t>(count));
    for (qsizetype index = 0; index < count; ++index) {
        const auto node = outline.childAtIndex(index);
        if (!node)
            continue;
        // The constructor is private.
        m_children.push_back(std::unique_ptr<OutlineItem>(new OutlineItem(*node, depth + 1)));
        m_children.back()->m_parent = this;
    }
}

const std::optional<HostPDFDestination> &OutlineItem::destination() const
{
    if (!m_isDestinationKnown) {
        m_destination = m_outline.destination();
        if (!m_destination)
            m_destination = m_outline.actionDestination();
        m_isDestinationKnown = true;
    }
    return m_destination;
}

} // namespace Tavrin
