// SPDX-License-Identifier: Apache-2.0
// An audit of every entry of a big manual, in several forms, against reading the summaries that it
// is made of.
#include <QBuffer>

#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include <support/Figures.h>
#include <support/RatioBenchmark.h>
#include <support/Workloads.h>

namespace Tavrin::Benchmarks
{

namespace
{

void readAllSummaries(const QString &map, const QString &pdf)
{
    const auto specification = bound(map, pdf);
    for (const auto &entry : specification->entries())
        std::dynamic_pointer_cast<PDFSpecification::Entry>(entry)->computeDisplay();
}

QStringList allLabels(const PDFSpecification &specification)
{
    QStringList labels;
    for (const auto &entry : specification.entries())
        labels += entry->label();
    return labels;
}

void makeTable(const QString &map, const QString &pdf)
{
    const auto specification = bound(map, pdf);
    benchmark::DoNotOptimize(PDFSpecAuditor(specification).auditCSV(allLabels(*specification)));
}

void writeReport(const QString &map, const QString &pdf, AuditFormat format)
{
    const auto specification = bound(map, pdf);
    std::vector<AuditReference> references;
    for (const QString &label : allLabels(*specification))
        references.push_back({label, {}, {}});
    QBuffer report;
    report.open(QIODevice::WriteOnly);
    PDFSpecAuditor::write(PDFSpecAuditor(specification).report(references), format, report);
}

} // namespace

void registerAuditFigures()
{
    const QString manual = corpusDocument(QStringLiteral("cplusplus.pdf"));
    if (manual.isEmpty())
        return;
    const auto skeleton = std::make_shared<Skeleton>(manual);
    const auto floor = [=] { readAllSummaries(skeleton->path(), manual); };
    registerRatio({"table of all entries / all summaries", 1.2, floor,
                   [=] { makeTable(skeleton->path(), manual); }});
    for (const auto &[name, format] :
         {std::pair("RTF of all entries / all summaries", AuditFormat::RTF),
          std::pair("HTML of all entries / all summaries", AuditFormat::HTML)}) {
        registerRatio({name, 2, floor,
                       [=, format = format] { writeReport(skeleton->path(), manual, format); }});
    }
}

} // namespace Tavrin::Benchmarks
