// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/BackgroundPool.h>

#include <QCoreApplication>
#include <QThreadPool>

#include <atomic>

namespace Tavrin
{

namespace
{

/// Whether the application that runs, if any, will wait.
std::atomic<bool> willBeWaitedFor = false;

QThreadPool &pool()
{
    static QThreadPool threads;
    return threads;
}

void waitForPool()
{
    willBeWaitedFor = false;
    pool().waitForDone();
}

} // namespace

QThreadPool &backgroundPool()
{
    if (!willBeWaitedFor.exchange(true))
        qAddPostRoutine(waitForPool);
    return pool();
}

} // namespace Tavrin
