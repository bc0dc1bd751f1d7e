// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

namespace Tavrin
{

/// What paper becomes when pages are inverted: dark, but not black.
inline constexpr QRgb invertedPaper = qRgb(38, 38, 38);

/// Turns light to dark and dark to light and keeps each colour's hue. The image is RGB32.
void invertPage(QImage &image);

} // namespace Tavrin
