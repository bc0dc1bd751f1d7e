// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/JSONAuditWriter.h>

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <Tavrin/audit/AuditContent.h>
#include <Tavrin/audit/AuditOutline.h>
#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QJsonObject share(const AuditShare &value)
{
    return {{u"covered"_s, value.covered}, {u"all"_s, value.all}, {u"percent"_s, value.percent()}};
}

QJsonObject json(const AuditReference &reference)
{
    QJsonObject object{{u"reference"_s, reference.reference}};
    if (!reference.label.isEmpty())
        object[u"citedBy"_s] = reference.label;
    if (!reference.location.isEmpty())
        object[u"location"_s] = reference.location;
    return object;
}

QJsonArray labels(const std::vector<AuditReport::EntryPtr> &entries)
{
    QJsonArray result;
    for (const auto &entry : entries)
        result.append(entry->label());
    return result;
}

QJsonValue label(const AuditReport::EntryPtr &entry)
{
    return entry ? QJsonValue(entry->label()) : QJsonValue();
}

QJsonArray chapters(const AuditReport &report)
{
    QJsonArray result;
    for (const AuditReport::Chapter &chapter : report.chapters) {
        QJsonObject object = share(chapter.share);
        object[u"label"_s] = label(chapter.entry);
        object[u"title"_s] = chapter.entry ? chapter.entry->title() : QString();
        object[u"cited"_s] = chapter.cited;
        result.append(object);
    }
    return result;
}

QJsonArray unknown(const AuditReport &report)
{
    QJsonArray result;
    for (const AuditReport::Unknown &one : report.unknown) {
        QJsonObject object = json(one.reference);
        object[u"written"_s] = one.written;
        object[u"nearest"_s] = label(one.nearest);
        result.append(object);
    }
    return result;
}

QJsonArray requirements(const AuditReport &report)
{
    QJsonArray result;
    for (const AuditReport::Requirement &requirement : report.requirements) {
        result.append(QJsonObject{{u"pattern"_s, requirement.pattern},
                                  {u"matched"_s, requirement.matched},
                                  {u"isMet"_s, requirement.isMet()},
                                  {u"missing"_s, labels(requirement.missing)}});
    }
    return result;
}

/// All but the entries.
QJsonObject frame(const AuditReport &report)
{
    QJsonObject coverage = share(report.coverage);
    coverage[u"cited"_s] = report.citedEntries();
    coverage[u"references"_s] = report.referenceCount;
    coverage[u"isMet"_s] = report.isCoverageMet();
    coverage[u"minimum"_s] =
        report.minimumCoverage ? QJsonValue(*report.minimumCoverage) : QJsonValue();
    const PDFSpecification &specification = *report.specification;
    return {{u"specification"_s, QJsonObject{{u"identifier"_s, specification.identifier()},
                                             {u"revision"_s, specification.revision()},
                                             {u"title"_s, specification.title()}}},
            {u"areDemandsMet"_s, report.areDemandsMet()},
            {u"coverage"_s, coverage},
            {u"chapters"_s, chapters(report)},
            {u"requirements"_s, requirements(report)},
            {u"unknown"_s, unknown(report)}};
}

QJsonObject json(const AuditReport &report, const AuditReport::Citation &citation)
{
    const SpecificationEntry &entry = *citation.entry;
    QJsonObject object{{u"label"_s, entry.label()},
                       {u"kind"_s, textForm(entry.type())},
                       {u"number"_s, PrintedNumber::number(entry)},
                       {u"title"_s, entry.title()},
                       {u"chapter"_s, label(report.chapters[citation.chapter].entry)},
                       {u"url"_s, AuditContent::url(entry)}};
    QJsonArray references;
    for (const AuditReference &reference : citation.references)
        references.append(json(reference));
    object[u"references"_s] = references;
    QJsonArray related;
    for (const AuditReport::Relation &relation : citation.related)
        related.append(relation.entry->label());
    object[u"related"_s] = related;
    if (const HostPDFDestination *place = placeOf(entry)) {
        object[u"page"_s] = place->page()->index();
        object[u"pageLabel"_s] = place->page()->label();
        object[u"x"_s] = place->point().x;
        object[u"y"_s] = place->point().y;
    }
    const auto *pdfEntry = dynamic_cast<const PDFSpecification::Entry *>(&entry);
    if (pdfEntry && pdfEntry->lineRange()) {
        object[u"lineRange"_s] =
            QJsonArray{pdfEntry->lineRange()->lower, pdfEntry->lineRange()->upper};
    }
    const auto summary =
        AuditContent::isShown(report) ? AuditContent::summary(entry) : std::nullopt;
    if (summary)
        object[u"summary"_s] = summary->string();
    return object;
}

} // namespace

void JSONAuditWriter::write(const AuditReport &report, QIODevice &device,
                            const Progress &progress) const
{
    // The entries are written one by one, into a document that is made without them.
    QByteArray document = QJsonDocument(frame(report)).toJson().trimmed();
    document.chop(1);
    put(device, document.trimmed() + ",\n    \"entries\": [");
    std::size_t done = 0;
    for (const AuditReport::Citation &citation : report.citations) {
        const QByteArray entry = QJsonDocument(json(report, citation)).toJson().trimmed();
        put(device, (done == 0 ? "\n" : ",\n") + entry);
        tell(progress, ++done, report.citations.size());
    }
    put(device, QByteArrayLiteral("\n    ]\n}\n"));
}

} // namespace Tavrin
