// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/BackgroundWork.h>

#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>

#include <atomic>
#include <chrono>

namespace Tavrin
{

namespace
{

/// How often progress is told.
constexpr std::chrono::milliseconds tellingInterval{40};

/// Thrown by the progress of work that nobody waits for any more.
struct GivenUp {
};

} // namespace

/// What the main thread shares with the thread that works.
struct BackgroundWork::Run : std::enable_shared_from_this<Run> {
    explicit Run(BackgroundWork *waiting) : waiter(waiting) {}

    void perform(const Work &work)
    {
        QString error;
        try {
            work([this](double done) { tell(done); });
        } catch (const GivenUp &) {
            return;
        } catch (const std::exception &exception) {
            error = QString::fromUtf8(exception.what());
        }
        postTask([self = shared_from_this(), error] {
            if (!self->isGivenUp)
                Q_EMIT self->waiter->finished(error);
        });
    }
    void tell(double done)
    {
        if (isGivenUp)
            throw GivenUp();
        // The first is told at once.
        const auto now = std::chrono::steady_clock::now();
        if (now - lastTold < tellingInterval)
            return;
        lastTold = now;
        postTask([self = shared_from_this(), done] {
            if (!self->isGivenUp)
                Q_EMIT self->waiter->progressed(done);
        });
    }

    /// Set on the main thread, by the waiter that goes.
    std::atomic<bool> isGivenUp = false;
    BackgroundWork *const waiter;
    std::chrono::steady_clock::time_point lastTold;
};

BackgroundWork::~BackgroundWork()
{
    if (m_run)
        m_run->isGivenUp = true;
}

void BackgroundWork::start(const Work &work)
{
    m_run = std::make_shared<Run>(this);
    // The application waits for this pool before it ends.
    startTask(backgroundPool(), [run = m_run, work] {
        if (!run->isGivenUp)
            run->perform(work);
    });
}

} // namespace Tavrin
