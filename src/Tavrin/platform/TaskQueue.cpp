// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/TaskQueue.h>

#include <utility>

namespace Tavrin
{

TaskQueue::TaskQueue(QObject *parent) : QObject(parent)
{
    connect(this, &TaskQueue::appended, this, &TaskQueue::runFirst, Qt::QueuedConnection);
}

void TaskQueue::append(std::function<void()> task)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    Q_EMIT appended(QPrivateSignal());
}

void TaskQueue::runFirst()
{
    std::function<void()> task;
    {
        const std::scoped_lock lock(m_mutex);
        task.swap(m_tasks.front());
        m_tasks.pop_front();
    }
    task();
}

} // namespace Tavrin
