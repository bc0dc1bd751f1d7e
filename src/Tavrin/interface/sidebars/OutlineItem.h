// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdf/HostPDFOutline.h>

namespace Tavrin
{

/// A node of an outline with all below it, as a tree shows them.
class OutlineItem
{
public:
    /// No document made to be read nests deeper. One made to do harm does, and views take more than
    /// linear time for each level; what lies below is left out.
    static constexpr int maxDepth = 100;

    explicit OutlineItem(const HostPDFOutline &outline) : OutlineItem(outline, 0) {}
    OutlineItem(const OutlineItem &) = delete;
    OutlineItem &operator=(const OutlineItem &) = delete;

    const HostPDFOutline &outline() const { return m_outline; }
    /// Null for the root.
    const OutlineItem *parent() const { return m_parent; }
    /// In document order.
    const std::vector<std::unique_ptr<OutlineItem>> &children() const { return m_children; }
    std::size_t childrenCount() const { return m_children.size(); }
    bool isLeaf() const { return m_children.empty(); }

    /// Where the node leads, in whatever way the file says that; looked up once.
    const std::optional<HostPDFDestination> &destination() const;

private:
    OutlineItem(const HostPDFOutline &outline, int depth);

    HostPDFOutline m_outline;
    const OutlineItem *m_parent = nullptr;
    std::vector<std::unique_ptr<OutlineItem>> m_children;
    mutable bool m_isDestinationKnown = false;
    mutable std::optional<HostPDFDestination> m_destination;
};

} // namespace Tavrin
