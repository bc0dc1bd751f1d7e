// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>

namespace Tavrin
{

/// What can be drawn.
enum class IconShape {
    Sidebar,
    Back,
    Forward,
    ZoomOut,
    ZoomIn,
    FitWidth,
    FitPage,
    Find,
    Invert,
    Outline,
    Close
};

/// An icon drawn of lines when it is painted: sharp at any scale, in the colour that the
/// application's palette has for the text of buttons then, and turned where one reads from the
/// right to the left. Needs no icon theme. Main thread.
QIcon drawnIcon(IconShape shape);

} // namespace Tavrin
