// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

namespace Tavrin
{

/// The red of warnings and faults: dark enough to be read on white, light enough on black.
inline constexpr QRgb systemRed = qRgb(0xd7, 0x26, 0x2b);

} // namespace Tavrin
