// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <thread>
#include <vector>

#include <Tavrin/interface/pdfview/PageContents.h>
#include <Tavrin/interface/pdfview/PageTile.h>
#include <Tavrin/pdf/HostPDFDocument.h>

namespace Tavrin
{

/// Reads a document for a view on a thread of its own, so that the view never waits.
///
/// What is wanted is told as a whole, the most urgent first, and replaces what was wanted before:
/// work that is not wanted any more is not begun, and a drawing under way is called off. Results
/// come as signals on the thread of the renderer, which is where all of it is called; none comes
/// of a document that has been replaced.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    /// A page that takes longer to draw than `patience` counts as failed.
    explicit PageRenderer(QObject *parent = nullptr,
                          std::chrono::milliseconds patience = std::chrono::seconds(20));
    /// Calls off what is under way and waits for that.
    ~PageRenderer() override;

    /// Null for none. Nothing that was wanted before remains wanted. The pages are read at once.
    void setDocument(const std::shared_ptr<HostPDFDocument> &document);
    /// What the view shows and will soon. Contents go between the first `urgent` tiles and the
    /// rest.
    void want(std::vector<PageTile> tiles, std::size_t urgent, std::vector<int> contents);
    /// Also reads the contents of a whole stretch of pages, after all that.
    void wantContents(int firstPage, int lastPage);

Q_SIGNALS:
    /// The pages of the document, null for those that the file has broken.
    void pagesRead(const std::vector<std::shared_ptr<HostPDFPage>> &pages);
    void tileDrawn(const PageTile &tile, const QImage &image);
    /// The page can't be drawn, or takes too long.
    void tileFailed(const PageTile &tile);
    void contentsRead(int page, const PageContentsPtr &contents);
    /// From the thread that reads; of use to nobody else.
    void resultsCame(QPrivateSignal);

private:
    using Pages = std::vector<std::shared_ptr<HostPDFPage>>;
    struct Job;

    void work();
    /// The most urgent job, taken off the list; nothing if there is none. Under the mutex.
    std::optional<Job> nextJob();
    void run(const Job &job);
    void draw(const Job &job);
    void readPages(const Job &job);
    void readContents(const Job &job);
    /// Calls back on the renderer's thread unless the document has been replaced by then.
    void deliver(int generation, std::function<void()> callback);
    void takeResults();
    void checkPatience();

    std::chrono::milliseconds m_patience;
    QTimer m_patienceTimer;
    /// Which document results are of. Written on the renderer's thread, under the mutex.
    int m_generation = 0;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isEnding = false;
    std::shared_ptr<HostPDFDocument> m_document;
    bool m_arePagesRead = true;
    std::vector<PageTile> m_tiles;
    std::size_t m_urgent = 0;
    std::vector<int> m_contents;
    std::set<int> m_moreContents;
    /// The drawing under way.
    std::shared_ptr<DrawingCancellation> m_cancellation;
    PageTile m_drawn;
    std::chrono::steady_clock::time_point m_begin;
    bool m_isTooSlow = false;
    struct Result {
        int generation = 0;
        std::function<void()> callback;
    };
    std::vector<Result> m_results;

    std::thread m_thread;
};

} // namespace Tavrin
