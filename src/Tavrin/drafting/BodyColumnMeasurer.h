// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <optional>

#include <Tavrin/drafting/PrintedPages.h>

namespace Tavrin
{

/// The area of the pages in which text runs, without running heads, feet and page numbers.
struct BodyColumn {
    /// In upright space of a page of the common size.
    Rect area;
    /// The same in page space; nothing for a document without readable pages.
    std::optional<Rect> pageBounds;
    Size pageSize;

    /// Whether the line is a running head or foot. Never so on pages of another size.
    bool isOutside(const PrintedLine &line, Size size) const;
};

/// Measures the body column over at most 60 pages in runs of four, so that heads that alternate
/// between left and right pages, and those that change with the chapter, are seen to repeat.
class BodyColumnMeasurer
{
public:
    explicit BodyColumnMeasurer(const PrintedPages &pages);

    BodyColumn measure();

    /// What could not be told.
    const QStringList &remarks() const { return m_remarks; }

private:
    std::vector<int> commonPages();
    double border(const std::vector<int> &sample, bool isTop, double height);

    const PrintedPages &m_pages;
    QStringList m_remarks;
};

} // namespace Tavrin
