// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/DocumentFinder.h>

#include <Tavrin/interface/pdfview/FoldedText.h>
#include <Tavrin/platform/PostedTask.h>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

namespace Tavrin
{

namespace
{

/// How often hits are told while a search runs.
constexpr std::chrono::milliseconds tellingInterval{40};

} // namespace

/// One search, which its thread and the finder share.
struct DocumentFinder::Search {
    std::shared_ptr<HostPDFDocument> document;
    QString phrase;
    int firstPage = 0;
    std::mutex mutex;
    // Under the mutex.
    /// Null once nobody wants the search any more.
    DocumentFinder *finder = nullptr;
    bool hasEnded = false;
    std::thread thread = {};

    bool isWanted()
    {
        const std::scoped_lock lock(mutex);
        return finder != nullptr;
    }
    /// Calls back on the main thread, if it wants this search then.
    template <class Callback>
    static void tell(const std::shared_ptr<Search> &search, Callback callback)
    {
        postTask([search, callback = std::move(callback)] {
            if (search->isWanted())
                callback(*search->finder);
        });
    }
};

DocumentFinder::DocumentFinder(QObject *parent) : QObject(parent) {}

DocumentFinder::~DocumentFinder()
{
    stop();
    join(true);
}

void DocumentFinder::join(bool all)
{
    std::erase_if(m_running, [all](const std::shared_ptr<Search> &search) {
        const auto hasEnded = [&search] {
            const std::scoped_lock lock(search->mutex);
            return search->hasEnded;
        };
        if (!all && !hasEnded())
            return false;
        search->thread.join();
        return true;
    });
}

void DocumentFinder::stop()
{
    if (const auto search = std::exchange(m_search, nullptr)) {
        const std::scoped_lock lock(search->mutex);
        search->finder = nullptr;
    }
}

void DocumentFinder::clear()
{
    stop();
    m_phrase.clear();
    m_hits.clear();
    m_hitCount = 0;
    m_isSearching = false;
    Q_EMIT hitsChanged();
}

void DocumentFinder::find(const std::shared_ptr<HostPDFDocument> &document, const QString &phrase,
                          int firstPage)
{
    clear();
    m_phrase = phrase;
    if (!document || phrase.simplified().isEmpty()) {
        Q_EMIT finished();
        return;
    }
    m_isSearching = true;
    m_search = std::make_shared<Search>();
    m_search->document = document;
    m_search->phrase = phrase;
    m_search->firstPage = std::max(firstPage, 0);
    m_search->finder = this;
    join(false);
    m_running.push_back(m_search);
    m_search->thread = std::thread([search = m_search] { run(search); });
}

void DocumentFinder::run(const std::shared_ptr<Search> &search)
{
    look(search);
    const std::scoped_lock lock(search->mutex);
    search->hasEnded = true;
}

void DocumentFinder::look(const std::shared_ptr<Search> &search)
{
    Hits found;
    std::chrono::steady_clock::time_point lastTold;
    const int count = search->document->pageCount();
    int total = 0;
    for (int step = 0; step < count && total < mostHits && search->isWanted(); ++step) {
        const int index = (search->firstPage + step) % count;
        const QString text = search->document->textForPage(index).value_or(QString());
        auto ranges = FoldedText(text).rangesOf(search->phrase);
        ranges.resize(std::min(ranges.size(), static_cast<std::size_t>(mostHits - total)));
        total += static_cast<int>(ranges.size());
        if (!ranges.empty())
            found[index] = std::move(ranges);
        // The first is told at once.
        const auto now = std::chrono::steady_clock::now();
        if (!found.empty() && now - lastTold >= tellingInterval) {
            lastTold = now;
            Search::tell(search, [hits = std::exchange(found, {})](DocumentFinder &finder) {
                finder.add(hits);
            });
        }
    }
    Search::tell(search, [hits = std::move(found)](DocumentFinder &finder) { finder.add(hits); });
    Search::tell(search, [](DocumentFinder &finder) { finder.end(); });
}

void DocumentFinder::add(Hits found)
{
    if (found.empty())
        return;
    for (const auto &[page, ranges] : found)
        m_hitCount += static_cast<int>(ranges.size());
    m_hits.merge(found);
    Q_EMIT hitsChanged();
}

void DocumentFinder::end()
{
    m_isSearching = false;
    m_search.reset();
    Q_EMIT finished();
}

const std::vector<TextRange> &DocumentFinder::hitsOn(int page) const
{
    static const std::vector<TextRange> none;
    const auto found = m_hits.find(page);
    return found == m_hits.end() ? none : found->second;
}

int DocumentFinder::indexOf(const FindHit &hit) const
{
    const auto &ranges = hitsOn(hit.page);
    const auto found = std::find(ranges.begin(), ranges.end(), hit.range);
    if (found == ranges.end())
        return -1;
    auto index = static_cast<int>(found - ranges.begin());
    for (auto it = m_hits.begin(); it->first != hit.page; ++it)
        index += static_cast<int>(it->second.size());
    return index;
}

std::optional<FindHit> DocumentFinder::hitFrom(int page, qsizetype offset) const
{
    for (auto it = m_hits.lower_bound(page); it != m_hits.end(); ++it) {
        for (const TextRange &range : it->second) {
            if (it->first > page || range.location >= offset)
                return FindHit{it->first, range};
        }
    }
    if (m_hits.empty())
        return std::nullopt;
    return FindHit{m_hits.begin()->first, m_hits.begin()->second.front()};
}

std::optional<FindHit> DocumentFinder::hitBefore(int page, qsizetype offset) const
{
    for (auto it = std::make_reverse_iterator(m_hits.upper_bound(page)); it != m_hits.rend();
         ++it) {
        for (auto range = it->second.rbegin(); range != it->second.rend(); ++range) {
            if (it->first < page || range->location < offset)
                return FindHit{it->first, *range};
        }
    }
    if (m_hits.empty())
        return std::nullopt;
    return FindHit{m_hits.rbegin()->first, m_hits.rbegin()->second.back()};
}

} // namespace Tavrin
