// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/audit/AuditFormat.h>
#include <Tavrin/audit/AuditReference.h>
#include <Tavrin/audit/AuditReport.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/StyledText.h>

class QIODevice;

namespace Tavrin
{

/// Turns references into a document for people who check a body of work against a specification:
/// what it says at each place that the work cites, and how much of it is cited at all.
///
/// A host that audits its own references takes report() and write(), or writeAudit() for both in
/// the background. Tables come row by row from auditCSVComponents(). Where an operation works in
/// the background, the specification is left alone by everyone else until the completion is
/// called; that happens in the thread of the QCoreApplication, which has to run its event loop.
/// The auditor may be gone by then.
///
/// A copy is cheap and shares the specification. The specification has to be bound to its file for
/// summaries and pictures; without one, report() works all the same and its documents have no
/// texts.
///
/// At the end of a build:
///
/// \snippet making-maps/main.cpp audit
class TAVRIN_CORE_EXPORT PDFSpecAuditor
{
public:
    /// The cells of a row, column by column.
    using Row = QStringList;
    /// A fraction from 0 to 1.
    ///
    /// Called on the thread that works.
    using ProgressUpdater = std::function<void(double done)>;
    /// Whether it was written. May be empty.
    using Completion = std::function<void(bool success)>;

    PDFSpecAuditor() = delete;
    /// Reads nothing yet. `specification` must not be null.
    explicit PDFSpecAuditor(const std::shared_ptr<PDFSpecification> &specification);

    /// The same for another thread, which may then make tables and reports: it knows the
    /// specifications that the audited one's manager has now, and asks the manager nothing more.
    /// The tables that it may need are loaded now, on the thread of the manager.
    ///
    /// Whoever audits there holds the specification's reading lock, so that no file is bound
    /// meanwhile.
    PDFSpecAuditor detached() const;

    const std::shared_ptr<PDFSpecification> &spec() const { return m_spec; }

    /// Looks of the rich text report, this one of an entry's title. They live as long as the
    /// process.
    const TextAttributes &headingAttributes() const;
    const TextAttributes &subHeadingAttributes() const;
    const TextAttributes &bodyAttributes() const;
    const TextAttributes &bodyErrorAttributes() const;
    /// "Reference", "Summary", "Related" and "Label", in the user's language.
    const QStringList &csvColumnHeadings() const { return m_csvColumnHeadings; }

    /// Writes a rich text report over the entries at the positions 60 to 119 of those that the
    /// references lead to, in document order; with fewer than 120 the process ends. Unknown
    /// references are left out. Tells on standard output which entry it is at, and on standard
    /// error why a report can't be written. Returns at once.
    ///
    /// For most hosts writeAudit() with AuditFormat::RTF is what they want: it takes any number of
    /// references and tells which are unknown.
    void writeAuditRTF(const QStringList &references, const QUrl &url,
                       const Completion &completion) const;

    /// A table with a row for each reference below the headings; cells that have nothing to say
    /// are empty, as is the row of an unknown reference but for its custom cells. Without headings
    /// of their own the custom columns have empty ones. What the updater throws ends the audit and
    /// passes through.
    ///
    /// Columns are those of csvColumnHeadings() and behind them the custom ones: a list for each
    /// reference, in their order. Reads the text of each section that is cited, once. Labels and
    /// spec URLs are understood, references as people write them are not: report() takes those.
    /// Without progressUpdater nothing is told.
    std::vector<Row>
    auditCSVComponents(const QStringList &references,
                       const std::optional<std::vector<QStringList>> &customComponents = {},
                       const std::optional<QStringList> &customHeadings = {},
                       const ProgressUpdater &progressUpdater = {}) const;

    /// The table as one text: cells in double quotes, "<no value>" in the empty ones. Nothing is
    /// escaped. For a file that every reader of tables understands, write AuditFormat::CSV.
    ///
    /// A cell with a quote in it breaks the table for its readers; summaries have theirs replaced.
    /// Lines are parted by line feeds, with none behind the last.
    QString auditCSV(const QStringList &references,
                     const std::optional<std::vector<QStringList>> &customComponents = {},
                     const std::optional<QStringList> &forHeadings = {}) const;

    /// What the references cover. No page is read; the tables of other specifications may be
    /// loaded to find related entries, so this belongs on the thread of the manager, unless
    /// the auditor is detached().
    ///
    /// A reference is a label or spec URL of this specification, or failing that what
    /// ReferenceResolver makes of it. Loads the table if that is still to be done; without one
    /// every reference is unknown.
    AuditReport report(const std::vector<AuditReference> &references,
                       const AuditDemands &demands = {}) const;

    /// Writes a report in any format, on the caller's thread. Throws AuditError.
    ///
    /// The device is open for writing. Texts and pictures are read from the pages now, so hold
    /// PDFSpecification::readingLock() where another thread may bind a file meanwhile; what the
    /// updater throws passes through.
    static void write(const AuditReport &report, AuditFormat format, QIODevice &device,
                      const ProgressUpdater &progressUpdater = {});
    /// The same into a file, which is there as a whole or stays as it was. `url` is a local one.
    static void write(const AuditReport &report, AuditFormat format, const QUrl &url,
                      const ProgressUpdater &progressUpdater = {});

    /// Makes the report at once, and writes it in the background, progress included. Tells on
    /// standard error why it can't be written.
    ///
    /// Call it on the thread of the manager that keeps the specification. The completion is called
    /// in the application's thread; the updater in the background.
    void writeAudit(const std::vector<AuditReference> &references, AuditFormat format,
                    const QUrl &url, const Completion &completion,
                    const ProgressUpdater &progressUpdater = {}) const;

private:
    Row tableRow(const QString &reference, QHash<const SpecificationEntry *, Row> &known) const;

    std::shared_ptr<PDFSpecification> m_spec;
    /// Absent unless detached.
    std::optional<std::vector<std::shared_ptr<Specification>>> m_others;
    QStringList m_csvColumnHeadings;
};

} // namespace Tavrin
