// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <Tavrin/CoreExport.h>

class QThreadPool;

namespace Tavrin
{

/// Has a pool do a task. As QThreadPool::start(), with the task and what it did handed over (see
/// handOver()): whoever waits for the pool and then calls that has seen all of it.
TAVRIN_CORE_EXPORT void startTask(QThreadPool &pool, std::function<void()> task);

} // namespace Tavrin
