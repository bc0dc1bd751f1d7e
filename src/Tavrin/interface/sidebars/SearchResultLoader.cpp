// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SearchResultLoader.h>

#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>
#include <Tavrin/interface/sidebars/ThreadSafeQueue.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>

#include <QElapsedTimer>

#include <atomic>
#include <optional>

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
struct SearchResultLoader::Drain : std::enable_shared_from_this<Drain> {
    explicit Drain(SearchResultLoader *loader) : listener(loader) {}

    void run()
    {
        isLoading = true;
        while (const auto result = next()) {
            compute(**result);
            postTask([self = shared_from_this(), result = *result] {
                if (self->listener)
                    self->listener->take(result);
            });
        }
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
    /// Null once it is gone. Main thread.
    SearchResultLoader *listener;
};

SearchResultLoader::SearchResultLoader(QObject *parent)
    : QObject(parent), m_drain(std::make_shared<Drain>(this))
{
    connect(&m_announcing, &QTimer::timeout, this, &SearchResultLoader::announce);
}

SearchResultLoader::~SearchResultLoader()
{
    removeAll();
    m_drain->listener = nullptr;
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
    // The application waits for this pool before it ends.
    startTask(backgroundPool(), [drain = m_drain] { drain->run(); });
}

void SearchResultLoader::take(const ResultPtr &result)
{
    m_loaded.push_back(result);
    m_announcing.start();
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
