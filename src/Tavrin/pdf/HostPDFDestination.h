// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <compare>
#include <memory>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

class HostPDFPage;

/// A place in a document: a page and a point in page space. A value; the page may be null.
class TAVRIN_CORE_EXPORT HostPDFDestination
{
public:
    HostPDFDestination(std::shared_ptr<HostPDFPage> page, Point point);

    const std::shared_ptr<HostPDFPage> &page() const { return m_page; }
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
