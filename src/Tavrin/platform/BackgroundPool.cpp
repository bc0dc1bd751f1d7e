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

struct Pools {
    Pools() { serial.setMaxThreadCount(1); }

    QThreadPool parallel;
    QThreadPool serial;
};

Pools &allPools()
{
    static Pools pools;
    return pools;
}

void waitForPools()
{
    willBeWaitedFor = false;
    allPools().parallel.waitForDone();
    allPools().serial.waitForDone();
}

Pools &waitedPools()
{
    if (!willBeWaitedFor.exchange(true))
        qAddPostRoutine(waitForPools);
    return allPools();
}

} // namespace

QThreadPool &backgroundPool()
{
    return waitedPools().parallel;
}

QThreadPool &serialBackground()
{
    return waitedPools().serial;
}

} // namespace Tavrin
