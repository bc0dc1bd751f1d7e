// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/InvertedPage.h>

#include <algorithm>

namespace Tavrin
{

void invertPage(QImage &image)
{
    constexpr int darkest = qRed(invertedPaper);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const auto [low, high] = std::minmax({qRed(line[x]), qGreen(line[x]), qBlue(line[x])});
            // Lightness is the mean of the two; turned over, all three move alike.
            const int shift = 255 - low - high;
            const auto turned = [shift](int channel) {
                return darkest + (channel + shift) * (255 - darkest) / 255;
            };
            line[x] = qRgb(turned(qRed(line[x])), turned(qGreen(line[x])), turned(qBlue(line[x])));
        }
    }
}

} // namespace Tavrin
