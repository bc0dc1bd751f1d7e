// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/StyledHeadingScanner.h>

#include <Tavrin/drafting/TextKey.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace Tavrin
{

namespace
{

constexpr int mostLevels = 3;
constexpr double largerThanBody = 1.1;
constexpr qsizetype longestStyledHeading = 120;

/// The sizes that make levels, the largest first.
std::vector<double> levels(const std::vector<double> &sizes)
{
    std::map<double, int, std::greater<>> counts;
    for (const double size : sizes)
        ++counts[size];
    std::vector<double> result;
    for (const auto &[size, count] : counts) {
        // What stands there once is the document's title.
        if (count > 1 && result.size() < mostLevels)
            result.push_back(size);
    }
    return result;
}

} // namespace

StyledHeadingScanner::StyledHeadingScanner(const PrintedPages &pages, const BodyColumn &column)
    : m_pages(pages), m_column(column)
{
}

std::vector<DraftItem> StyledHeadingScanner::scan(const QSet<int> &skipped) const
{
    std::vector<DraftItem> items;
    std::vector<double> sizes;
    for (int page = 0; page < m_pages.pageCount(); ++page) {
        if (!skipped.contains(page))
            scanPage(page, items, sizes);
    }
    const std::vector<double> levelSizes = levels(sizes);
    std::vector<DraftItem> result;
    for (size_t i = 0; i < items.size(); ++i) {
        const auto level = std::find(levelSizes.begin(), levelSizes.end(), sizes[i]);
        if (level == levelSizes.end())
            continue;
        items[i].depth = static_cast<int>(level - levelSizes.begin());
        result.push_back(std::move(items[i]));
    }
    return result;
}

bool StyledHeadingScanner::isHeading(const PrintedLine &line) const
{
    const double body = m_pages.bodySize();
    const bool isLarger = line.size > largerThanBody * body;
    const bool isBold = line.isBold && line.size > 0.95 * body;
    const auto isLetter = [](QChar character) { return character.isLetter(); };
    return (isLarger || isBold) && line.text.size() < longestStyledHeading &&
           std::count_if(line.text.begin(), line.text.end(), isLetter) > 1 &&
           !line.text.endsWith(QLatin1Char(',')) && !line.text.endsWith(QLatin1Char(';'));
}

void StyledHeadingScanner::scanPage(int page, std::vector<DraftItem> &items,
                                    std::vector<double> &sizes) const
{
    const Size size = m_pages.size(page);
    const PrintedLine *previous = nullptr;
    const auto &lines = m_pages.lines(page);
    for (size_t i = 0; i < lines.size(); ++i) {
        const PrintedLine &line = lines[i];
        const bool counts = !m_column.isOutside(line, size) && isHeading(line);
        const double rounded = std::round(line.size * 2) / 2;
        const bool goesOn = counts && previous && rounded == sizes.back() &&
                            previous->bottom() - line.top() < 0.6 * line.size;
        if (goesOn) {
            items.back().title += QLatin1Char(' ') + line.text;
        } else if (counts) {
            DraftItem item;
            item.title = line.text;
            item.page = page;
            item.isFound = true;
            item.corner = {line.bounds.minX(), line.top()};
            item.firstLine = static_cast<int>(i);
            items.push_back(std::move(item));
            sizes.push_back(rounded);
        }
        previous = counts ? &line : nullptr;
    }
}

} // namespace Tavrin
