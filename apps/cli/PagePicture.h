// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include "PageInspection.h"

namespace Tavrin::Cli
{

/// The page with what was read of it drawn over: each visual line in a frame whose colour tells
/// its style, with its place in the order beside it, and a mark at each destination.
QImage pagePicture(const PageInspection &inspection, double scale);

} // namespace Tavrin::Cli
