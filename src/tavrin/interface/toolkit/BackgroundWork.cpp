// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/BackgroundWork.h>

#include <QCoreApplication>
#include <QPromise>
#include <QThreadPool>

#include <memory>

namespace Tavrin
{

namespace
{

constexpr int steps = 1'000;

/// Thrown by the progress of work that nobody waits for any more.
struct GivenUp {
};

/// Not the application's own pool: there the toolkit converts images while the main thread waits.
QThreadPool &pool()
{
    static QThreadPool threads;
    static const bool isWaitedFor = [] {
        qAddPostRoutine(BackgroundWork::waitForDone);
        return true;
    }();
    Q_UNUSED(isWaitedFor)
    return threads;
}

void run(QPromise<QString> &promise, const BackgroundWork::Work &work)
{
    QString error;
    try {
        work([&promise](double done) {
            if (promise.isCanceled())
                throw GivenUp();
            promise.setProgressValue(static_cast<int>(done * steps));
        });
    } catch (const GivenUp &) {
        return;
    } catch (const std::exception &exception) {
        error = QString::fromUtf8(exception.what());
    }
    promise.addResult(error);
}

} // namespace

BackgroundWork::BackgroundWork(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::progressValueChanged, this,
            [this](int value) { Q_EMIT progressed(static_cast<double>(value) / steps); });
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        if (!m_watcher.isCanceled())
            Q_EMIT finished(m_watcher.result());
    });
}

BackgroundWork::~BackgroundWork()
{
    m_watcher.cancel();
}

void BackgroundWork::waitForDone()
{
    pool().waitForDone();
}

void BackgroundWork::start(const Work &work)
{
    const auto promise = std::make_shared<QPromise<QString>>();
    promise->setProgressRange(0, steps);
    m_watcher.setFuture(promise->future());
    promise->start();
    pool().start([promise, work] {
        if (!promise->isCanceled())
            run(*promise, work);
        promise->finish();
    });
}

} // namespace Tavrin
