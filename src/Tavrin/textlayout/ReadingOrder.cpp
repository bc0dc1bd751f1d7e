// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/textlayout/ReadingOrder.h>

#include <algorithm>
#include <limits>

namespace Tavrin
{

namespace
{

/// Lines on one side of a gutter that make a column, and how much of its width most of them
/// must fill.
constexpr size_t linesNeeded = 4;
constexpr float fullLine = 0.7f;
/// In sizes. A column of running text is not narrower than the first; an overfull line may
/// reach over the gutter by less than the second.
constexpr float narrowestColumn = 12;
constexpr float overfull = 1.5f;
constexpr float sameRow = 0.25f;
constexpr float sameStart = 0.3f;
constexpr size_t startsToTry = 8;
constexpr int mostColumnsDepth = 3;

} // namespace

void ReadingOrder::sort(std::vector<DraftLine> &lines)
{
    sortRows(lines);
    lines = inColumns(lines, 0);
}

void ReadingOrder::sortRows(Lines &lines)
{
    std::sort(lines.begin(), lines.end(), [](const DraftLine &a, const DraftLine &b) {
        return a.baseline != b.baseline ? a.baseline > b.baseline : a.first < b.first;
    });
    for (auto row = lines.begin(); row != lines.end();) {
        auto end = row + 1;
        while (end != lines.end() &&
               row->baseline - end->baseline <= sameRow * std::min(row->size, end->size))
            ++end;
        std::sort(row, end, [](const DraftLine &a, const DraftLine &b) {
            return a.start != b.start ? a.start < b.start : a.first < b.first;
        });
        row = end;
    }
}

ReadingOrder::Lines ReadingOrder::inColumns(const Lines &lines, int depth)
{
    const Gutter gutter = depth < mostColumnsDepth ? findGutter(lines) : Gutter{};
    if (gutter.lines == 0)
        return lines;
    Lines result;
    result.reserve(lines.size());
    Lines before;
    Lines behind;
    const auto flush = [&] {
        for (Lines *column : {&before, &behind}) {
            const Lines ordered = inColumns(*column, depth + 1);
            result.insert(result.end(), ordered.begin(), ordered.end());
            column->clear();
        }
    };
    for (const DraftLine &line : lines) {
        const Side side = ReadingOrder::side(line, gutter.position);
        if (side == Side::Across) {
            flush();
            result.push_back(line);
        } else {
            (side == Side::Before ? before : behind).push_back(line);
        }
    }
    flush();
    return result;
}

ReadingOrder::Gutter ReadingOrder::findGutter(const Lines &lines)
{
    Gutter best;
    if (lines.size() < 2 * linesNeeded)
        return best;
    for (const float position : commonStarts(lines)) {
        const size_t beside = linesBeside(lines, position);
        if (beside > best.lines)
            best = {position, beside};
    }
    return best;
}

std::vector<float> ReadingOrder::commonStarts(const Lines &lines)
{
    std::vector<float> starts;
    starts.reserve(lines.size());
    for (const DraftLine &line : lines)
        starts.push_back(line.start);
    std::sort(starts.begin(), starts.end());
    const float size = lines[lines.size() / 2].size;
    const float first = starts.front() + narrowestColumn * size;

    std::vector<std::pair<size_t, float>> common;
    for (size_t i = 0; i < starts.size();) {
        size_t end = i + 1;
        while (end < starts.size() && starts[end] - starts[i] <= sameStart * size)
            ++end;
        if (end - i >= linesNeeded && starts[i] > first)
            common.emplace_back(end - i, starts[i]);
        i = end;
    }
    std::sort(common.begin(), common.end(), [](const auto &a, const auto &b) {
        return a.first != b.first ? a.first > b.first : a.second < b.second;
    });
    std::vector<float> result;
    for (size_t i = 0; i < std::min(common.size(), startsToTry); ++i)
        result.push_back(common[i].second);
    return result;
}

size_t ReadingOrder::linesBeside(const Lines &lines, float position)
{
    float left = std::numeric_limits<float>::max();
    float right = position;
    size_t before = 0;
    size_t behind = 0;
    for (const DraftLine &line : lines) {
        const Side side = ReadingOrder::side(line, position);
        if (side == Side::Before)
            left = std::min(left, line.start);
        if (side == Side::Behind)
            right = std::max(right, line.end);
        before += side == Side::Before;
        behind += side == Side::Behind;
    }
    size_t fullBefore = 0;
    size_t fullBehind = 0;
    for (const DraftLine &line : lines) {
        const Side side = ReadingOrder::side(line, position);
        const float width = line.end - line.start;
        if (width < narrowestColumn * 0.7f * line.size)
            continue;
        fullBefore += side == Side::Before && width >= fullLine * (position - left);
        fullBehind += side == Side::Behind && width >= fullLine * (right - position);
    }
    const bool columns = fullBefore >= linesNeeded && fullBehind >= linesNeeded &&
                         fullBefore * 2 >= before && fullBehind * 2 >= behind;
    return columns ? fullBefore + fullBehind : 0;
}

ReadingOrder::Side ReadingOrder::side(const DraftLine &line, float position)
{
    if (line.start >= position - sameStart * line.size)
        return Side::Behind;
    return line.end <= position + overfull * line.size ? Side::Before : Side::Across;
}

} // namespace Tavrin
