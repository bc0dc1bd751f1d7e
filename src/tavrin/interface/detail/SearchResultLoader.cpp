// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/SearchResultLoader.h>

#include <Tavrin/interface/detail/SpecPDFSearchResult.h>
#include <Tavrin/interface/detail/ThreadSafeQueue.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QPromise>

#include <atomic>

namespace Tavrin
{

namespace
{

/// How long announcing may keep the main thread from its other events, in milliseconds.
constexpr qint64 announcingTime = 4;

void compute(const SpecPDFSearchResult &result)
{
    const auto &entry = result.entry();
    const auto specification = std::dynamic_pointer_cast<PDFSpecification>(entry->specification());
    if (!specification)
        return;
    const auto lock = specification->readingLock();
    entry->computeDisplay();
}

} // namespace

/// What the main thread shares with the thread that computes.
struct SearchResultLoader::Drain {
    using Promise = QPromise<ResultPtr>;

    void run(Promise &promise)
    {
        isLoading = true;
        while (const auto result = next()) {
            compute(**result);
            promise.addResult(*result);
        }
        promise.finish();
    }
    std::optional<ResultPtr> next()
    {
        if (auto result = entryLoadQueue.dequeue())
            return result;
        isLoading = false;
        // What came in between found a drain that was running, and started none.
        auto late = entryLoadQueue.dequeue();
        if (late)
            isLoading = true;
        return late;
    }

    ThreadSafeQueue<ResultPtr> entryLoadQueue;
    std::atomic<bool> isLoading = false;
};

SearchResultLoader::SearchResultLoader(QObject *parent)
    : QObject(parent), m_drain(std::make_shared<Drain>())
{
    connect(&m_announcing, &QTimer::timeout, this, &SearchResultLoader::announce);
}

SearchResultLoader::~SearchResultLoader()
{
    removeAll();
}

bool SearchResultLoader::isLoading() const
{
    return m_drain->isLoading;
}

void SearchResultLoader::enqueue(const ResultPtr &result)
{
    if (result->isDescribed() || result->enqueuedIn == m_filling)
        return;
    result->enqueuedIn = m_filling;
    m_drain->entryLoadQueue.enqueue(result);
    if (!m_drain->isLoading.exchange(true))
        startDrain();
}

void SearchResultLoader::removeAll()
{
    m_drain->entryLoadQueue.removeAll();
    ++m_filling;
}

void SearchResultLoader::startDrain()
{
    const auto promise = std::make_shared<Drain::Promise>();
    auto *watcher = new QFutureWatcher<ResultPtr>(this);
    connect(watcher, &QFutureWatcherBase::resultReadyAt, this, [this, watcher](int index) {
        m_loaded.push_back(watcher->resultAt(index));
        m_announcing.start();
    });
    connect(watcher, &QFutureWatcherBase::finished, watcher, &QObject::deleteLater);
    watcher->setFuture(promise->future());
    promise->start();
    // The application waits for this pool before it ends.
    startTask(backgroundPool(), [drain = m_drain, promise] { drain->run(*promise); });
}

/// In slices, as much may have come together while the main thread was busy.
void SearchResultLoader::announce()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_loaded.empty() && timer.elapsed() < announcingTime) {
        const ResultPtr result = m_loaded.front();
        m_loaded.pop_front();
        Q_EMIT loaded(result);
    }
    if (m_loaded.empty())
        m_announcing.stop();
}

} // namespace Tavrin
