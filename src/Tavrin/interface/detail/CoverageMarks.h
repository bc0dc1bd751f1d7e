// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <vector>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// The rectangles that references cover, page by page, and what is marked of them: passages that
/// follow each other closely become one mark.
class CoverageMarks
{
public:
    using Marks = std::map<int, std::vector<Rect>>;

    /// How far a passage reaches up to the next one, in points.
    static constexpr double reach = 10.0;

    /// One more passage: a rectangle a page, by page index from 0, in page space.
    void add(const std::map<int, Rect> &pageRects);

    /// What there is so far, each page from the bottom to the top.
    Marks merged() const;

private:
    Marks m_rects;
};

} // namespace Tavrin
