// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/ViewHistory.h>

namespace Tavrin
{

namespace
{

std::optional<ViewPlace> move(std::vector<ViewPlace> &from, std::vector<ViewPlace> &to,
                              const ViewPlace &here)
{
    if (from.empty())
        return std::nullopt;
    const ViewPlace target = from.back();
    from.pop_back();
    to.push_back(here);
    return target;
}

} // namespace

void ViewHistory::leave(const ViewPlace &place, Clock::time_point now)
{
    const bool isPassing = m_lastJump && now - *m_lastJump < passingTime && !m_back.empty();
    m_lastJump = now;
    m_forward.clear();
    if (isPassing || (!m_back.empty() && m_back.back() == place))
        return;
    m_back.push_back(place);
    if (m_back.size() > mostPlaces)
        m_back.erase(m_back.begin());
}

std::optional<ViewPlace> ViewHistory::goBack(const ViewPlace &from)
{
    m_lastJump.reset();
    return move(m_back, m_forward, from);
}

std::optional<ViewPlace> ViewHistory::goForward(const ViewPlace &from)
{
    m_lastJump.reset();
    return move(m_forward, m_back, from);
}

} // namespace Tavrin
