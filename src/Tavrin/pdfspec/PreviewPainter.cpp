// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PreviewPainter.h>

#include <Tavrin/platform/StandardError.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// As much as the engine draws at most.
constexpr double largestImage = 64e6;

/// The size of a rectangle on the page as it is held to be read.
Size displayedSize(const HostPDFDocument &document, int index, const Rect &rect)
{
    const auto page = document.page(index);
    return page ? page->geometry().toUpright(rect).size : rect.size;
}

} // namespace

PreviewPainter::PreviewPainter(const HostPDFDocument &document, double scale)
    : m_document(document), m_scale(scale)
{
}

QImage PreviewPainter::paint(const std::map<int, Rect> &rects) const
{
    double width = 0;
    double height = 0;
    for (const auto &[index, rect] : rects) {
        const Size size = displayedSize(m_document, index, rect);
        width = std::max(width, size.width * m_scale);
        height += size.height * m_scale;
    }
    if (rects.empty())
        return {};
    const bool fits = width >= 1 && height >= 1 && width * height <= largestImage;
    QImage image = fits ? QImage(int(width), int(height), QImage::Format_RGB32) : QImage();
    if (image.isNull()) {
        standardError(u"Can't extract image -- unable to get drawing context"_s);
        return image;
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    double top = 0;
    for (const auto &[index, rect] : rects) {
        const auto page = m_document.page(index);
        if (!page)
            continue;
        painter.drawImage(QPointF(0, std::round(top)), page->draw(rect, {.scale = m_scale}));
        top += displayedSize(m_document, index, rect).height * m_scale;
    }
    return image;
}

} // namespace Tavrin
