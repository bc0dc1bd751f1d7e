// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Has the event loop of the application's thread do a task, after those that were posted before.
/// What the caller did is there for it. Does nothing without an application. Any thread.
TAVRIN_CORE_EXPORT void postTask(std::function<void()> task);

} // namespace Tavrin
