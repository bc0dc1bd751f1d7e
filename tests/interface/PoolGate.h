// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <condition_variable>
#include <mutex>

#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <support/FinishTasks.h>

namespace Tavrin::Testing
{

/// Has the pool's threads wait until it is opened, so that nothing in the background begins.
class PoolGate
{
public:
    PoolGate()
    {
        for (int i = 0; i < backgroundPool().maxThreadCount(); ++i) {
            startTask(backgroundPool(), [this] {
                std::unique_lock lock(m_mutex);
                m_changed.wait(lock, [this] { return m_isOpen; });
            });
        }
    }
    ~PoolGate()
    {
        open();
        finishTasks(backgroundPool());
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = false;
};

} // namespace Tavrin::Testing
