// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <compare>
#include <memory>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

class HostPDFPage;

/// A place in a document: a page and a point in page space. A value; the page may be null. The page
/// is kept alive, and its document isn't: see HostPDFPage::document().
class TAVRIN_CORE_EXPORT HostPDFDestination
{
public:
    /// `point` is in page space, and need not lie on the page.
    HostPDFDestination(std::shared_ptr<HostPDFPage> page, Point point);

    /// Null where a place has no page.
    const std::shared_ptr<HostPDFPage> &page() const { return m_page; }
    /// In page space. Where a reader is to be led, the top left of what is meant.
    Point point() const { return m_point; }

    /// Reading order: `less` if this place is read before the other. By page, then from the top
    /// of the displayed page down, then from left to right. A place without a page comes last;
    /// a coordinate that is no number counts as 0.
    std::weak_ordering compare(const HostPDFDestination &other) const;

    friend bool operator==(const HostPDFDestination &, const HostPDFDestination &) = default;

private:
    std::shared_ptr<HostPDFPage> m_page;
    Point m_point;
};

} // namespace Tavrin
