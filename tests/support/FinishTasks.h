// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QThreadPool>

#include <Tavrin/platform/ThreadHandOver.h>

namespace Tavrin::Testing
{

/// Waits until a pool has done all that it was given, and takes over what it did.
inline void finishTasks(QThreadPool &pool)
{
    pool.waitForDone();
    handOver();
}

} // namespace Tavrin::Testing
