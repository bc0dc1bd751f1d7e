// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// Where a reader was in a document.
struct ViewPlace {
    int page = 0;
    /// What stood at the upper left of the view, in page space.
    Point point;

    friend bool operator==(const ViewPlace &, const ViewPlace &) = default;
};

/// The places to go back and forward through, as in a web browser. A value.
class ViewHistory
{
public:
    using Clock = std::chrono::steady_clock;
    /// Leaving a place so soon after coming to it doesn't make it one to come back to.
    static constexpr std::chrono::seconds passingTime{2};
    static constexpr std::size_t mostPlaces = 200;

    bool canGoBack() const { return !m_back.empty(); }
    bool canGoForward() const { return !m_forward.empty(); }

    /// A jump is about to leave this place.
    void leave(const ViewPlace &place, Clock::time_point now = Clock::now());
    /// The place to go to, given the one to come back to; nothing at the end.
    std::optional<ViewPlace> goBack(const ViewPlace &from);
    std::optional<ViewPlace> goForward(const ViewPlace &from);
    void clear() { *this = {}; }

private:
    std::vector<ViewPlace> m_back;
    std::vector<ViewPlace> m_forward;
    std::optional<Clock::time_point> m_lastJump;
};

} // namespace Tavrin
