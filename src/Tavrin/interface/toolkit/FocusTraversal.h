// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/WidgetsExport.h>

class QWidget;

/// Moves the focus among the parts of a window.
namespace Tavrin::FocusTraversal
{

/// Puts the focus into a part: where it was there last, else where the Tab key leads to first.
/// False if nothing in it can be seen that takes the focus.
TAVRIN_WIDGETS_EXPORT bool enter(QWidget &part);

} // namespace Tavrin::FocusTraversal
