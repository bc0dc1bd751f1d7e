// SPDX-License-Identifier: Apache-2.0
// A PDF whose first page is drawn, small enough for many runs.
#include "FuzzedPDF.h"

#include <algorithm>

using namespace Tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr double pixels = 128;
    const auto document = Fuzzing::openPDF(data, size);
    const auto page = document ? document->page(0) : nullptr;
    if (!page)
        return 0;
    const Rect area = page->bounds(PDFBox::Crop);
    PageDrawing drawing;
    drawing.scale = pixels / std::max({area.size.width, area.size.height, 1.0});
    drawing.annotations = true;
    page->draw(area, drawing);
    return 0;
}
