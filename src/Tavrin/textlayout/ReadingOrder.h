// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/textlayout/LineGrouper.h>

namespace Tavrin
{

/// The order in which a reader takes the lines of a page: from the top down, in a row from the
/// start; columns of running text one after the other between the lines that cross their gutter.
///
/// A gutter counts only if full lines of text stand on both its sides, so a table is read row
/// by row. In doubt the order is from the top down.
class ReadingOrder
{
public:
    /// Sorts lines of one frame.
    static void sort(std::vector<DraftLine> &lines);

private:
    using Lines = std::vector<DraftLine>;
    struct Gutter {
        float position = 0;
        size_t lines = 0;
    };
    enum class Side { Before, Behind, Across };

    static void sortRows(Lines &lines);
    static Lines inColumns(const Lines &lines, int depth);
    static Gutter findGutter(const Lines &lines);
    static std::vector<float> commonStarts(const Lines &lines);
    static size_t linesBeside(const Lines &lines, float position);
    static Side side(const DraftLine &line, float position);
};

} // namespace Tavrin
