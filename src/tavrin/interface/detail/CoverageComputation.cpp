// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/CoverageComputation.h>

#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>

#include <QPromise>
#include <QThreadPool>

#include <algorithm>
#include <optional>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Entry = PDFSpecification::Entry;
using Promise = QPromise<CoverageMarks::Marks>;

struct Reference {
    QString label;
    /// Null if there is none.
    std::shared_ptr<Entry> entry;
};

/// All that the background needs.
struct Task {
    std::shared_ptr<PDFSpecification> specification;
    std::shared_ptr<CachingPDFDocument> document;
    QString shortTitle;
    std::vector<Reference> references;

    void run(Promise &promise) const;
    std::optional<PDFSpecification::PageRects> rects(const Reference &reference) const;
};

std::optional<PDFSpecification::PageRects> Task::rects(const Reference &reference) const
{
    if (!reference.entry)
        return std::nullopt;
    try {
        if (const auto info = specification->pageRectInfo(*reference.entry))
            return info->pageRects;
    } catch (const std::exception &error) {
        qCWarning(interfaceLog).noquote() << QString::fromUtf8(error.what());
    }
    return std::nullopt;
}

void Task::run(Promise &promise) const
{
    CoverageMarks marks;
    for (std::size_t i = 0; i < references.size(); ++i) {
        // Held for one entry, not for all: whoever binds a file waits for it.
        const auto lock = specification->readingLock();
        if (promise.isCanceled() || specification->document() != document)
            return;
        if (const auto found = rects(references[i])) {
            marks.add(*found);
            promise.setProgressValue(static_cast<int>(i));
        } else {
            qCWarning(interfaceLog).noquote() << u"Couldn't find entry geometry for %1 in %2"_s.arg(
                references[i].label, shortTitle);
        }
    }
    promise.addResult(marks.merged());
}

} // namespace

CoverageComputation::CoverageComputation(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::progressValueChanged, this, [this](int value) {
        Q_EMIT progressed(double(value) / std::max(1, m_watcher.progressMaximum()));
    });
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        if (m_watcher.future().resultCount() > 0)
            Q_EMIT finished(m_watcher.result());
        else
            Q_EMIT outdated();
    });
}

CoverageComputation::~CoverageComputation()
{
    m_watcher.cancel();
}

void CoverageComputation::start(const std::shared_ptr<PDFSpecification> &specification,
                                const ReferenceCoverage &coverage)
{
    Task task{specification, specification->document(), specification->shortTitle(), {}};
    task.references.reserve(coverage.size());
    // Looking up may load the table or make an entry for a range of lines, which other threads must
    // not; finding the places is what takes time.
    for (const CoveredReference &reference : coverage) {
        task.references.push_back({reference.label, std::dynamic_pointer_cast<Entry>(
                                                        specification->entry(reference.label))});
    }
    const auto promise = std::make_shared<Promise>();
    promise->setProgressRange(0, static_cast<int>(coverage.size()));
    m_watcher.setFuture(promise->future());
    promise->start();
    // The application waits for this pool before it ends.
    startTask(backgroundPool(), [promise, task = std::move(task)] {
        task.run(*promise);
        promise->finish();
    });
}

} // namespace Tavrin
