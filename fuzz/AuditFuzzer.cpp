// SPDX-License-Identifier: Apache-2.0
// A list of references, held against a small specification and reported in every format.
#include "Fuzzing.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QXmlStreamReader>

#include <Tavrin/audit/AuditReferenceList.h>
#include <Tavrin/audit/PDFSpecAuditor.h>

using namespace Tavrin;
using namespace Qt::StringLiterals;

namespace
{

/// Entries that name each other, and one that names what is not there.
std::shared_ptr<PDFSpecification> relatedSpecification()
{
    auto specification = Fuzzing::specification();
    specification->entry(u"4.1"_s)->setRelatedEntries({u"4.2"_s, u"fig-1"_s});
    specification->entry(u"4.2"_s)->setRelatedEntries({u"spec://4.1/fuzzed/1"_s, u"nowhere"_s});
    specification->entry(u"tab-1"_s)->setTitle(u"=SUM(A1) <b>&\"']]>"_s);
    return specification;
}

QByteArray written(const AuditReport &report, AuditFormat format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PDFSpecAuditor::write(report, format, buffer);
    return buffer.data();
}

void writeReports(const AuditReport &report)
{
    QJsonParseError error{};
    const QByteArray json = written(report, AuditFormat::JSON);
    Fuzzing::require(!QJsonDocument::fromJson(json, &error).isNull() &&
                         error.error == QJsonParseError::NoError,
                     "a JSON report is JSON");
    QXmlStreamReader junit(written(report, AuditFormat::JUnit));
    while (!junit.atEnd())
        junit.readNext();
    Fuzzing::require(!junit.hasError(), "a JUnit report is well-formed");
    const QByteArray rtf = written(report, AuditFormat::RTF);
    Fuzzing::require(rtf.startsWith("{\\rtf1") && rtf.trimmed().endsWith('}'),
                     "a rich text report is whole");
    Fuzzing::require(!written(report, AuditFormat::HTML).contains("<script"),
                     "a page of HTML runs nothing");
    const QByteArray csv = written(report, AuditFormat::CSV);
    Fuzzing::require(csv.endsWith("\r\n"), "a table ends with its last row");
    Fuzzing::require(csv.count('"') % 2 == 0, "quotes of a table come in pairs");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto specification = relatedSpecification();
    static const PDFSpecAuditor auditor(specification);
    std::vector<AuditReference> references;
    try {
        references = AuditReferenceList::parse(Fuzzing::bytes(data, size), u"fuzzed"_s);
    } catch (const AuditReferenceList::Error &) {
        return 0;
    }
    const AuditDemands demands{{u"4.*"_s, u"fig-?"_s}, 50};
    const AuditReport report = auditor.report(references, demands);
    Fuzzing::require(report.referenceCount == static_cast<int>(references.size()),
                     "every reference is counted");
    Fuzzing::require(report.coverage.covered <= report.coverage.all, "no more is covered than all");
    writeReports(report);
    QStringList labels;
    for (const AuditReference &reference : references)
        labels += reference.reference;
    Fuzzing::require(auditor.auditCSVComponents(labels).size() == references.size() + 1,
                     "a table has a row for each reference");
    return 0;
}
