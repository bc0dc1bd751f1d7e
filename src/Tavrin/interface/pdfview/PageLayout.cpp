// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PageLayout.h>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

constexpr Size letterPage{612, 792};
/// Scroll bars count in int.
constexpr double tallestColumn = 1e9;

Size sound(Size size)
{
    const auto isSound = [](double length) { return std::isfinite(length) && length > 0; };
    return isSound(size.width) && isSound(size.height) ? size : letterPage;
}

} // namespace

void PageLayout::setPages(const std::vector<Size> &sizes)
{
    m_sizes.clear();
    m_totalHeight = 0;
    std::vector<double> widths;
    for (const Size &size : sizes) {
        m_sizes.push_back(sound(size));
        m_totalHeight += m_sizes.back().height;
        widths.push_back(m_sizes.back().width);
    }
    std::sort(widths.begin(), widths.end());
    m_widest = widths.empty() ? 0 : widths.back();
    const double most = widths.empty() ? 0 : widths[widths.size() / 2];
    m_fittedWidth = m_widest > 2 * most ? most : m_widest;
    setScale(m_scale);
}

void PageLayout::setScale(double scale)
{
    const double highest =
        m_totalHeight > 0 ? std::min(maximumScale, tallestColumn / m_totalHeight) : maximumScale;
    m_scale =
        std::clamp(std::isfinite(scale) ? scale : 1.0, std::min(minimumScale, highest), highest);
    update();
}

void PageLayout::setViewWidth(double width)
{
    m_viewWidth = width;
}

void PageLayout::update()
{
    m_tops.assign(1, margin);
    for (const Size &size : m_sizes)
        m_tops.push_back(m_tops.back() + size.height * m_scale + margin);
}

QSizeF PageLayout::contentSize() const
{
    return {m_sizes.empty() ? 0 : m_widest * m_scale + 2 * margin, m_tops.back()};
}

QRectF PageLayout::pageRect(int page) const
{
    const Size size = pageSize(page);
    const double width = size.width * m_scale;
    const double left = (std::max(m_viewWidth, contentSize().width()) - width) / 2;
    return {left, m_tops[static_cast<std::size_t>(page)], width, size.height * m_scale};
}

int PageLayout::pageAt(double y) const
{
    // Half of the gap belongs to either page.
    const auto next = std::upper_bound(m_tops.begin(), m_tops.end() - 1, y + margin / 2);
    const auto index = static_cast<int>(next - m_tops.begin()) - 1;
    return std::clamp(index, m_sizes.empty() ? -1 : 0, pageCount() - 1);
}

double PageLayout::scaleForWidth(double viewWidth) const
{
    return m_fittedWidth > 0 ? std::max(1.0, viewWidth - 2 * margin) / m_fittedWidth : 1;
}

double PageLayout::scaleForPage(int page, QSizeF view) const
{
    if (page < 0 || page >= pageCount())
        return 1;
    const Size size = pageSize(page);
    return std::min(std::max(1.0, view.width() - 2 * margin) / size.width,
                    std::max(1.0, view.height() - 2 * margin) / size.height);
}

} // namespace Tavrin
