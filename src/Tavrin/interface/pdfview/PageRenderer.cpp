// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PageRenderer.h>

#include <Tavrin/interface/pdfview/InvertedPage.h>

#include <algorithm>
#include <utility>

namespace Tavrin
{

/// One piece of work, with all that it needs.
struct PageRenderer::Job {
    enum class Kind { ReadPages, Draw, ReadContents };

    Kind kind;
    int generation = 0;
    std::shared_ptr<HostPDFDocument> document;
    PageTile tile = {};
    int page = 0;
    std::shared_ptr<DrawingCancellation> cancellation = {};
};

PageRenderer::PageRenderer(QObject *parent, std::chrono::milliseconds patience)
    : QObject(parent), m_patience(patience)
{
    m_patienceTimer.setInterval(std::min(patience, std::chrono::milliseconds(1000)));
    connect(&m_patienceTimer, &QTimer::timeout, this, &PageRenderer::checkPatience);
    connect(this, &PageRenderer::resultsCame, this, &PageRenderer::takeResults,
            Qt::QueuedConnection);
    m_patienceTimer.start();
    m_thread = std::thread([this] { work(); });
}

PageRenderer::~PageRenderer()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
        if (m_cancellation)
            m_cancellation->cancel();
    }
    m_wake.notify_all();
    m_thread.join();
}

void PageRenderer::setDocument(const std::shared_ptr<HostPDFDocument> &document)
{
    // The old one is closed outside the lock.
    std::shared_ptr<HostPDFDocument> old = document;
    {
        const std::scoped_lock lock(m_mutex);
        ++m_generation;
        m_document.swap(old);
        m_arePagesRead = !m_document;
        m_tiles.clear();
        m_contents.clear();
        m_moreContents.clear();
        if (m_cancellation)
            m_cancellation->cancel();
    }
    m_wake.notify_all();
}

void PageRenderer::want(std::vector<PageTile> tiles, std::size_t urgent, std::vector<int> contents)
{
    {
        const std::scoped_lock lock(m_mutex);
        const auto drawn = std::find(tiles.begin(), tiles.end(), m_drawn);
        // One that was called off before is drawn anew.
        const bool isUnderWay = m_cancellation && !m_cancellation->isCancelled();
        if (isUnderWay && drawn == tiles.end()) {
            m_cancellation->cancel();
        } else if (isUnderWay) {
            if (drawn - tiles.begin() < std::ptrdiff_t(urgent))
                --urgent;
            tiles.erase(drawn);
        }
        m_tiles = std::move(tiles);
        m_urgent = urgent;
        m_contents = std::move(contents);
    }
    m_wake.notify_all();
}

void PageRenderer::wantContents(int firstPage, int lastPage)
{
    {
        const std::scoped_lock lock(m_mutex);
        for (int page = firstPage; page <= lastPage; ++page)
            m_moreContents.insert(page);
    }
    m_wake.notify_all();
}

void PageRenderer::work()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        std::optional<Job> job = nextJob();
        if (!job) {
            m_wake.wait(lock);
            continue;
        }
        lock.unlock();
        run(*job);
        // The document may be closed by this, which takes a while.
        job.reset();
        lock.lock();
    }
}

std::optional<PageRenderer::Job> PageRenderer::nextJob()
{
    if (!m_document)
        return std::nullopt;
    Job job{Job::Kind::ReadPages, m_generation, m_document};
    if (!m_arePagesRead) {
        m_arePagesRead = true;
    } else if (!m_tiles.empty() && (m_urgent > 0 || m_contents.empty())) {
        job.kind = Job::Kind::Draw;
        job.tile = m_tiles.front();
        job.cancellation = std::make_shared<DrawingCancellation>();
        m_tiles.erase(m_tiles.begin());
        m_urgent -= m_urgent > 0 ? 1 : 0;
        m_cancellation = job.cancellation;
        m_drawn = job.tile;
        m_begin = std::chrono::steady_clock::now();
        m_isTooSlow = false;
    } else if (!m_contents.empty()) {
        job.kind = Job::Kind::ReadContents;
        job.page = m_contents.front();
        m_contents.erase(m_contents.begin());
        m_moreContents.erase(job.page);
    } else if (!m_moreContents.empty()) {
        job.kind = Job::Kind::ReadContents;
        job.page = *m_moreContents.begin();
        m_moreContents.erase(m_moreContents.begin());
    } else {
        return std::nullopt;
    }
    return job;
}

void PageRenderer::run(const Job &job)
{
    switch (job.kind) {
    case Job::Kind::ReadPages:
        return readPages(job);
    case Job::Kind::Draw:
        return draw(job);
    case Job::Kind::ReadContents:
        return readContents(job);
    }
}

void PageRenderer::deliver(int generation, std::function<void()> callback)
{
    const std::scoped_lock lock(m_mutex);
    m_results.push_back({generation, std::move(callback)});
    if (m_results.size() == 1)
        Q_EMIT resultsCame(QPrivateSignal());
}

void PageRenderer::takeResults()
{
    std::vector<Result> results;
    {
        const std::scoped_lock lock(m_mutex);
        results.swap(m_results);
    }
    for (const Result &result : results) {
        if (result.generation == m_generation)
            result.callback();
    }
}

void PageRenderer::readPages(const Job &job)
{
    auto pages = std::make_shared<Pages>();
    for (int index = 0; index < job.document->pageCount(); ++index)
        pages->push_back(job.document->page(index));
    deliver(job.generation, [this, pages] { Q_EMIT pagesRead(*pages); });
}

void PageRenderer::draw(const Job &job)
{
    QImage image;
    if (const auto page = job.document->page(job.tile.page)) {
        PageDrawing drawing;
        drawing.scale = job.tile.scale;
        drawing.annotations = true;
        drawing.cancellation = job.cancellation.get();
        image = page->draw(pageArea(job.tile, page->geometry()), drawing);
        if (job.tile.isInverted)
            invertPage(image);
    }
    bool isCalledOff = false;
    {
        const std::scoped_lock lock(m_mutex);
        isCalledOff = job.cancellation->isCancelled() && !m_isTooSlow;
        m_cancellation.reset();
    }
    if (!image.isNull())
        deliver(job.generation, [this, tile = job.tile, image] { Q_EMIT tileDrawn(tile, image); });
    else if (!isCalledOff)
        deliver(job.generation, [this, tile = job.tile] { Q_EMIT tileFailed(tile); });
}

void PageRenderer::readContents(const Job &job)
{
    auto contents = std::make_shared<PageContents>();
    if (const auto page = job.document->page(job.page)) {
        contents->text = page->text();
        contents->annotations = page->annotations();
        contents->label = page->label();
    }
    deliver(job.generation, [this, page = job.page, result = PageContentsPtr(contents)] {
        Q_EMIT contentsRead(page, result);
    });
}

void PageRenderer::checkPatience()
{
    const std::scoped_lock lock(m_mutex);
    if (m_cancellation && std::chrono::steady_clock::now() - m_begin > m_patience) {
        m_isTooSlow = true;
        m_cancellation->cancel();
    }
}

} // namespace Tavrin
