// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/HostPDFDestination.h>

#include <Tavrin/pdf/HostPDFPage.h>

#include <cmath>
#include <limits>
#include <utility>

namespace Tavrin
{

namespace
{

std::weak_ordering order(double a, double b)
{
    if (a < b)
        return std::weak_ordering::less;
    return a > b ? std::weak_ordering::greater : std::weak_ordering::equivalent;
}

double number(double value)
{
    return std::isnan(value) ? 0 : value;
}

} // namespace

HostPDFDestination::HostPDFDestination(std::shared_ptr<HostPDFPage> page, Point point)
    : m_page(std::move(page)), m_point(point)
{
}

std::weak_ordering HostPDFDestination::compare(const HostPDFDestination &other) const
{
    constexpr int last = std::numeric_limits<int>::max();
    const int page = m_page ? m_page->index() : last;
    const int otherPage = other.m_page ? other.m_page->index() : last;
    if (page != otherPage || !m_page)
        return page <=> otherPage;
    const Point here = m_page->geometry().toUpright(m_point);
    const Point there = m_page->geometry().toUpright(other.m_point);
    const auto byHeight = order(number(there.y), number(here.y));
    return std::is_eq(byHeight) ? order(number(here.x), number(there.x)) : byHeight;
}

} // namespace Tavrin
