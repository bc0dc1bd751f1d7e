// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace Tavrin
{

/// Defined by Tavrin::Widgets; others hand it on.
class ViewController;

using ViewControllerPtr = std::shared_ptr<ViewController>;

} // namespace Tavrin
