// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// The font of the surroundings, whatever it is: text in it names no family, so whoever shows it
/// takes their own.
inline TextFont systemFont(double pointSize, quint32 traits = 0)
{
    return {QString(), pointSize, traits};
}

/// The size of running text, in points.
inline constexpr double systemFontSize = 13;
/// The size of summaries and captions, in points.
inline constexpr double smallFontSize = 11;

} // namespace Tavrin
