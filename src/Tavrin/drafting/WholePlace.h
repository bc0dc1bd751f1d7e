// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/PageGeometry.h>

namespace Tavrin
{

/// A place in page space, in whole numbers as a link holds them, just up and left of a heading's
/// corner for the reader, whichever way the page is turned. The corner is in upright space.
Point wholePlace(Point corner, const PageGeometry &geometry);

} // namespace Tavrin
