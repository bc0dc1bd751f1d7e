// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/SerialBackground.h>

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
    static QThreadPool thread;
    return thread;
}

void waitForPool()
{
    willBeWaitedFor = false;
    pool().waitForDone();
}

} // namespace

QThreadPool &serialBackground()
{
    if (!willBeWaitedFor.exchange(true)) {
        pool().setMaxThreadCount(1);
        qAddPostRoutine(waitForPool);
    }
    return pool();
}

} // namespace Tavrin
