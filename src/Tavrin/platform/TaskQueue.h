// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace Tavrin
{

/// Tasks that other threads want done by the event loop of its own, one a turn: a task may run a
/// loop of its own, and the next must not wait for it.
class TaskQueue : public QObject
{
    Q_OBJECT

public:
    explicit TaskQueue(QObject *parent = nullptr);

    /// Any thread.
    void append(std::function<void()> task);

Q_SIGNALS:
    /// Queued, as calls with a function are: but of this one Qt makes the event, so that nothing
    /// but the queue is shared between threads.
    void appended(QPrivateSignal);

private:
    void runFirst();

    std::mutex m_mutex;
    std::deque<std::function<void()>> m_tasks;
};

} // namespace Tavrin
