// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PostedTask.h>

#include <Tavrin/platform/TaskQueue.h>

#include <QCoreApplication>

#include <utility>

namespace Tavrin
{

namespace
{

TaskQueue &queue()
{
    // Never destroyed: a thread may post to an application that has just ended, and what it posts
    // then must not go with the static objects.
    static auto *const made = new TaskQueue;
    return *made;
}

/// On the application's thread, before others can post.
void makeQueue()
{
    queue().moveToThread(QCoreApplication::instance()->thread());
}

Q_COREAPP_STARTUP_FUNCTION(makeQueue)

} // namespace

void postTask(std::function<void()> task)
{
    if (QCoreApplication::instance())
        queue().append(std::move(task));
}

} // namespace Tavrin
