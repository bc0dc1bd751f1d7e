// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/BodyColumnMeasurer.h>

#include <Tavrin/drafting/RunningHeadFinder.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

constexpr int runLength = 4;
constexpr int runCount = 15;

using SizeKey = std::pair<int, int>;

SizeKey keyOf(Size size)
{
    return {static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height))};
}

} // namespace

bool BodyColumn::isOutside(const PrintedLine &line, Size size) const
{
    return keyOf(size) == keyOf(pageSize) &&
           (line.middle() > area.maxY() || line.middle() < area.minY());
}

BodyColumnMeasurer::BodyColumnMeasurer(const PrintedPages &pages) : m_pages(pages) {}

std::vector<int> BodyColumnMeasurer::commonPages()
{
    std::map<SizeKey, std::vector<int>> pagesBySize;
    std::vector<int> starts = m_pages.sample(runCount);
    int next = 0;
    for (const int start : starts) {
        for (int page = std::max(next, start); page < start + runLength; ++page) {
            const Size size = m_pages.size(page);
            if (size.width > 0 && !m_pages.lines(page).empty())
                pagesBySize[keyOf(size)].push_back(page);
            next = page + 1;
        }
    }
    const auto fewer = [](const auto &a, const auto &b) {
        return a.second.size() < b.second.size();
    };
    const auto most = std::max_element(pagesBySize.begin(), pagesBySize.end(), fewer);
    if (most == pagesBySize.end())
        return {};
    if (pagesBySize.size() > 1)
        m_remarks.append(u"pages differ in size; the body column is that of the most common one"_s);
    return most->second;
}

double BodyColumnMeasurer::border(const std::vector<int> &sample, bool isTop, double height)
{
    using Edge = RunningHeadFinder::Edge;
    RunningHeadFinder finder(m_pages, sample, isTop ? Edge::Top : Edge::Bottom);
    const auto found = finder.find();
    const QString what = isTop ? u"running heads"_s : u"running feet"_s;
    if (!found) {
        m_remarks.append(u"no %1 found to leave out"_s.arg(what));
        return isTop ? height : 0;
    }
    if (found->exceptions > 0) {
        m_remarks.append(
            u"%1 of %2 sampled pages print text level with the %3"_s.arg(found->exceptions)
                .arg(sample.size())
                .arg(what));
    }
    // Text comes first: where it reaches beyond the heads, they stay inside.
    const double distance =
        found->body > found->head ? (found->body + found->head) / 2 : found->body - 0.5;
    return isTop ? height - std::max(distance, 0.0) : std::max(distance, 0.0);
}

BodyColumn BodyColumnMeasurer::measure()
{
    BodyColumn column;
    const std::vector<int> sample = commonPages();
    if (sample.empty()) {
        m_remarks.append(u"no page with text, so no body column"_s);
        return column;
    }
    column.pageSize = m_pages.size(sample.front());
    const double bottom = border(sample, false, column.pageSize.height);
    const double top = border(sample, true, column.pageSize.height);
    column.area = Rect::fromCorners({0, bottom}, {column.pageSize.width, top});
    const Rect bounds = m_pages.geometry(sample.front()).toPage(column.area);
    // Tenths of a point keep the map readable.
    const auto rounded = [](double value) { return std::round(10 * value) / 10; };
    column.pageBounds = Rect{{rounded(bounds.origin.x), rounded(bounds.origin.y)},
                             {rounded(bounds.size.width), rounded(bounds.size.height)}};
    return column;
}

} // namespace Tavrin
