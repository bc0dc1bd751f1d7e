// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/CoverageComputation.h>

#include <Tavrin/interface/toolkit/InterfaceLog.h>

#include <optional>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Entry = PDFSpecification::Entry;
/// Nothing if another file was bound meanwhile.
using Result = std::optional<CoverageMarks::Marks>;

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

    Result run(const BackgroundWork::Progress &progress) const;
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

Result Task::run(const BackgroundWork::Progress &progress) const
{
    CoverageMarks marks;
    for (std::size_t i = 0; i < references.size(); ++i) {
        // Held for one entry, not for all: whoever binds a file waits for it.
        const auto lock = specification->readingLock();
        if (specification->document() != document)
            return std::nullopt;
        if (const auto found = rects(references[i])) {
            marks.add(*found);
            progress(static_cast<double>(i) / static_cast<double>(references.size()));
        } else {
            qCWarning(interfaceLog).noquote() << u"Couldn't find entry geometry for %1 in %2"_s.arg(
                references[i].label, shortTitle);
        }
    }
    return marks.merged();
}

} // namespace

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
    const auto result = std::make_shared<Result>();
    m_work = std::make_unique<BackgroundWork>();
    connect(m_work.get(), &BackgroundWork::progressed, this, &CoverageComputation::progressed);
    connect(m_work.get(), &BackgroundWork::finished, this, [this, result] {
        if (*result)
            Q_EMIT finished(**result);
        else
            Q_EMIT outdated();
    });
    m_work->start([result, task = std::move(task)](const BackgroundWork::Progress &progress) {
        *result = task.run(progress);
    });
}

} // namespace Tavrin
