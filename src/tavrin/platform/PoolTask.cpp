// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PoolTask.h>

#include <QThreadPool>

#include <memory>
#include <mutex>

namespace Tavrin
{

namespace
{

struct PoolTask {
    std::mutex mutex;
    std::function<void()> work;
};

void run(PoolTask *task)
{
    std::function<void()> work;
    {
        const std::lock_guard lock(task->mutex);
        work.swap(task->work);
    }
    delete task;
    work();
}

} // namespace

void startTask(QThreadPool &pool, std::function<void()> task)
{
    auto owned = std::make_unique<PoolTask>();
    {
        const std::lock_guard lock(owned->mutex);
        owned->work.swap(task);
    }
    // A pointer alone fits into what the pool keeps, so that nothing else is handed over.
    pool.start([handed = owned.release()] { run(handed); });
}

} // namespace Tavrin
