// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include <map>

#include <Tavrin/pdf/HostPDFDocument.h>

namespace Tavrin
{

/// Draws rectangles of pages below each other into one image, in the order of the pages.
class PreviewPainter
{
public:
    /// Draws `scale` pixels a point.
    PreviewPainter(const HostPDFDocument &document, double scale);

    /// As wide as the widest rectangle and as tall as all of them, each rounded down to whole
    /// pixels. A null image if there is nothing to draw, or, which is told on standard error, if it
    /// would be too large.
    QImage paint(const std::map<int, Rect> &rects) const;

private:
    const HostPDFDocument &m_document;
    double m_scale;
};

} // namespace Tavrin
