// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/PDFSpecAuditor.h>

#include <QSaveFile>
#include <QThreadPool>

#include <algorithm>
#include <compare>

#include <Tavrin/audit/AuditBlock.h>
#include <Tavrin/audit/AuditError.h>
#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/audit/AuditRelations.h>
#include <Tavrin/audit/AuditReportMaker.h>
#include <Tavrin/audit/AuditWriter.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>
#include <Tavrin/platform/RTFWriter.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

/// The part of the entries that a rich text report is about.
constexpr std::ptrdiff_t firstReported = 60;
constexpr std::ptrdiff_t endReported = 120;

std::vector<EntryPtr> reportedEntries(PDFSpecification &specification,
                                      const QStringList &references)
{
    std::vector<EntryPtr> entries;
    for (const QString &reference : references) {
        if (SpecURL::hasReversedLines(reference))
            continue;
        if (auto entry =
                std::dynamic_pointer_cast<PDFSpecification::Entry>(specification.entry(reference)))
            entries.push_back(std::move(entry));
    }
    std::stable_sort(entries.begin(), entries.end(), [](const EntryPtr &a, const EntryPtr &b) {
        const bool haveDestinations = a->destination() && b->destination();
        if (!haveDestinations)
            return a->destination().has_value() && !b->destination();
        return std::is_lt(a->destination()->compare(*b->destination()));
    });
    if (std::ssize(entries) < endReported)
        qFatal("A rich text report needs %td entries", endReported);
    return {entries.begin() + firstReported, entries.begin() + endReported};
}

StyledText rtfReport(PDFSpecification &specification, const QStringList &references)
{
    StyledText report;
    for (const EntryPtr &entry : reportedEntries(specification, references)) {
        standardOutput(u"Auditing "_s + entry->label() + u"..."_s);
        report.append(AuditBlock::text(*entry));
    }
    return report;
}

/// Lets something write a file, which is there as a whole or stays as it was.
template <class Writing>
void writeFile(const QUrl &url, Writing write)
{
    QSaveFile file(url.toLocalFile());
    if (!file.open(QIODevice::WriteOnly))
        throw AuditError(file.errorString());
    write(file);
    if (!file.commit())
        throw AuditError(file.errorString());
}

/// Does what may fail in the background, and says in the application's thread whether it did.
void runInBackground(const std::function<void()> &work,
                     const PDFSpecAuditor::Completion &completion)
{
    startTask(backgroundPool(), [work, completion] {
        bool success = true;
        try {
            work();
        } catch (const std::exception &error) {
            success = false;
            standardError(u"Error writing audit: "_s + QString::fromUtf8(error.what()));
        }
        if (completion)
            postTask([completion, success] { completion(success); });
    });
}

/// Text in which no quote needs to be escaped.
QString withoutDoubleQuotes(QString text)
{
    for (const QChar quote : {u'“', u'”', u'"'})
        text.replace(quote, u"''"_s);
    return text;
}

QString summaryCell(const SpecificationEntry &entry)
{
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    if (pdfEntry)
        pdfEntry->computeDisplay();
    if (!isTextual(entry.type()))
        return localized("n/a", "spec audit message");
    const auto summary = pdfEntry ? pdfEntry->summaryText() : std::nullopt;
    return summary ? withoutDoubleQuotes(summary->string()) : QString();
}

QString indexAndTitle(const SpecificationEntry &entry)
{
    return entry.indexString() + u": "_s + entry.title();
}

} // namespace

PDFSpecAuditor::PDFSpecAuditor(const std::shared_ptr<PDFSpecification> &specification)
    : m_spec(specification),
      m_csvColumnHeadings{
          localized("Reference", "spec entry field"), localized("Summary", "spec entry field"),
          localized("Related", "spec entry field"), localized("Label", "spec entry field")}
{
}

PDFSpecAuditor PDFSpecAuditor::detached() const
{
    PDFSpecAuditor copy(*this);
    copy.m_others = otherSpecifications(*m_spec);
    return copy;
}

const TextAttributes &PDFSpecAuditor::headingAttributes() const
{
    static const TextAttributes attributes = AuditBlock::headingAttributes();
    return attributes;
}

const TextAttributes &PDFSpecAuditor::subHeadingAttributes() const
{
    static const TextAttributes attributes = AuditBlock::subHeadingAttributes();
    return attributes;
}

const TextAttributes &PDFSpecAuditor::bodyAttributes() const
{
    static const TextAttributes attributes = AuditBlock::bodyAttributes();
    return attributes;
}

const TextAttributes &PDFSpecAuditor::bodyErrorAttributes() const
{
    static const TextAttributes attributes = AuditBlock::bodyErrorAttributes();
    return attributes;
}

void PDFSpecAuditor::writeAuditRTF(const QStringList &references, const QUrl &url,
                                   const Completion &completion) const
{
    runInBackground(
        [spec = m_spec, references, url] {
            const StyledText report = rtfReport(*spec, references);
            writeFile(url, [&report](QIODevice &file) {
                if (!RTFWriter(file).write(report, {0, report.length()}))
                    throw AuditError(file.errorString());
            });
        },
        completion);
}

std::vector<PDFSpecAuditor::Row> PDFSpecAuditor::auditCSVComponents(
    const QStringList &references, const std::optional<std::vector<QStringList>> &customComponents,
    const std::optional<QStringList> &customHeadings, const ProgressUpdater &progressUpdater) const
{
    const std::vector<QStringList> components =
        customComponents.value_or(std::vector<QStringList>());
    const qsizetype extraColumns = components.empty() ? 0 : components.front().size();
    std::vector<Row> rows;
    rows.reserve(std::size_t(references.size()) + 1);
    rows.push_back(m_csvColumnHeadings + customHeadings.value_or(QStringList(extraColumns)));
    // Works refer to one entry again and again.
    QHash<const SpecificationEntry *, Row> known;
    for (qsizetype i = 0; i < references.size(); ++i) {
        const auto at = std::size_t(i);
        rows.push_back(tableRow(references[i], known) +
                       (at < components.size() ? components[at] : QStringList()));
        if (progressUpdater)
            progressUpdater(double(i + 1) / double(references.size()));
    }
    return rows;
}

PDFSpecAuditor::Row PDFSpecAuditor::tableRow(const QString &reference,
                                             QHash<const SpecificationEntry *, Row> &known) const
{
    // A range of lines that ends before it begins must not be looked up.
    const auto entry = SpecURL::hasReversedLines(reference) ? nullptr : m_spec->entry(reference);
    if (!entry)
        return Row(m_csvColumnHeadings.size());
    if (const auto it = known.constFind(entry.get()); it != known.constEnd())
        return *it;
    QStringList related;
    for (const auto &one : relatedEntries(*entry, *m_spec, m_others))
        related += indexAndTitle(*one);
    const Row row{indexAndTitle(*entry), summaryCell(*entry), related.join(u'\n'), entry->label()};
    return *known.insert(entry.get(), row);
}

QString PDFSpecAuditor::auditCSV(const QStringList &references,
                                 const std::optional<std::vector<QStringList>> &customComponents,
                                 const std::optional<QStringList> &forHeadings) const
{
    const QString none = localized("<no value>", "spec audit message");
    QStringList lines;
    for (const Row &row : auditCSVComponents(references, customComponents, forHeadings)) {
        QStringList cells;
        for (const QString &cell : row)
            cells += u'"' + (cell.isEmpty() ? none : cell) + u'"';
        lines += cells.join(u',');
    }
    return lines.join(u'\n');
}

AuditReport PDFSpecAuditor::report(const std::vector<AuditReference> &references,
                                   const AuditDemands &demands) const
{
    return AuditReportMaker(m_spec, m_others).make(references, demands);
}

void PDFSpecAuditor::write(const AuditReport &report, AuditFormat format, QIODevice &device,
                           const ProgressUpdater &progressUpdater)
{
    AuditWriter::make(format)->write(report, device, progressUpdater);
}

void PDFSpecAuditor::write(const AuditReport &report, AuditFormat format, const QUrl &url,
                           const ProgressUpdater &progressUpdater)
{
    writeFile(url, [&](QIODevice &file) { write(report, format, file, progressUpdater); });
}

void PDFSpecAuditor::writeAudit(const std::vector<AuditReference> &references, AuditFormat format,
                                const QUrl &url, const Completion &completion,
                                const ProgressUpdater &progressUpdater) const
{
    runInBackground([audit = report(references), format, url,
                     progressUpdater] { write(audit, format, url, progressUpdater); },
                    completion);
}

} // namespace Tavrin
