// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace Tavrin
{

/// Defined by Tavrin::Widgets; others hand it on.
class ViewController;

/// Shared by whoever shows the view. Hosts that look into one include
/// `<Tavrin/interface/toolkit/ViewController.h>` and link Tavrin::Widgets; all others only pass it
/// on.
using ViewControllerPtr = std::shared_ptr<ViewController>;

} // namespace Tavrin
