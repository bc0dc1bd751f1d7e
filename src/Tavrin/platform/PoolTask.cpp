// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PoolTask.h>

#include <Tavrin/platform/ThreadHandOver.h>

#include <QThreadPool>

#include <memory>
#include <utility>

namespace Tavrin
{

namespace
{

using Task = std::function<void()>;

void run(Task *handed)
{
    handOver();
    std::unique_ptr<Task> task(handed);
    (*task)();
    // What it holds goes before it counts as done.
    task.reset();
    handOver();
}

} // namespace

void startTask(QThreadPool &pool, std::function<void()> task)
{
    auto owned = std::make_unique<Task>(std::move(task));
    handOver();
    // A pointer alone fits into what the pool keeps, so that nothing else is handed over.
    pool.start([handed = owned.release()] { run(handed); });
}

} // namespace Tavrin
