// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/CoverageMarks.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

std::vector<Rect> mergedUpward(std::vector<Rect> rects)
{
    std::stable_sort(rects.begin(), rects.end(),
                     [](const Rect &a, const Rect &b) { return a.origin.y < b.origin.y; });
    std::vector<Rect> result;
    for (const Rect &rect : rects) {
        if (!result.empty() && result.back().intersects(rect))
            result.back() = result.back().united(rect);
        else
            result.push_back(rect);
    }
    return result;
}

} // namespace

void CoverageMarks::add(const std::map<int, Rect> &pageRects)
{
    for (auto [page, rect] : pageRects) {
        rect.size.height += reach;
        m_rects[page].push_back(rect);
    }
}

CoverageMarks::Marks CoverageMarks::merged() const
{
    Marks result;
    for (const auto &[page, rects] : m_rects)
        result[page] = mergedUpward(rects);
    return result;
}

} // namespace Tavrin
