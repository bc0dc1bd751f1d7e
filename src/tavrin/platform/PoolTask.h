// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <Tavrin/CoreExport.h>

class QThreadPool;

namespace Tavrin
{

/// Has a pool do a task. As QThreadPool::start(), but hands the task over by a lock that a thread
/// sanitizer sees; of what Qt does inside it sees nothing, and would take the task for a race.
TAVRIN_CORE_EXPORT void startTask(QThreadPool &pool, std::function<void()> task);

} // namespace Tavrin
