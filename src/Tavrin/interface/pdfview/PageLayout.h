// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

#include <vector>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// The pages of a document in one column, as a view scrolls through them.
///
/// Places are in content space: device-independent pixels, origin at the upper left of the whole
/// column, y down. The scale is in such pixels a point. A value; look-ups cost O(log n).
class PageLayout
{
public:
    /// Around the column, and between two pages.
    static constexpr double margin = 12;
    static constexpr double minimumScale = 0.1;
    static constexpr double maximumScale = 16;

    /// Upright sizes in points. One that is not finite or not positive counts as a letter page.
    void setPages(const std::vector<Size> &sizes);
    /// Cut to the limits above, and to what keeps the column's height a number of a scroll bar.
    void setScale(double scale);
    /// The column is centred where the view is wider.
    void setViewWidth(double width);

    double scale() const { return m_scale; }
    int pageCount() const { return static_cast<int>(m_sizes.size()); }
    Size pageSize(int page) const { return m_sizes.at(static_cast<std::size_t>(page)); }
    QSizeF contentSize() const;
    QRectF pageRect(int page) const;
    /// The page nearest to a height, -1 without pages.
    int pageAt(double y) const;

    /// What makes the column as wide as a view of this width. One sheet that is far wider than
    /// most doesn't make all the others small.
    double scaleForWidth(double viewWidth) const;
    /// What shows a whole page in a view of this size.
    double scaleForPage(int page, QSizeF view) const;

private:
    void update();

    std::vector<Size> m_sizes;
    /// Where each page begins, and the end of the last.
    std::vector<double> m_tops{margin};
    double m_totalHeight = 0;
    double m_widest = 0;
    /// See scaleForWidth().
    double m_fittedWidth = 0;
    double m_scale = 1;
    double m_viewWidth = 0;
};

} // namespace Tavrin
