// SPDX-License-Identifier: Apache-2.0
// A host without windows that makes a map: drafts one out of a PDF, finds what belongs together,
// and says what a list of references covers of the document.
//
// usage: making-maps DOC.pdf SPEC.dtd MAP.xml REFERENCES.txt
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <Tavrin/audit/AuditReferenceList.h>
#include <Tavrin/audit/AuditReport.h>
#include <Tavrin/audit/AuditSentences.h>
#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/enhance/PDFXMLEnhancer.h>
#include <Tavrin/pdf/CachingPDFDocument.h>

namespace
{

void write(const QString &text, const QUrl &url)
{
    QFile file(url.toLocalFile());
    if (!file.open(QFile::WriteOnly) || file.write(text.toUtf8()) < 0)
        throw std::runtime_error(file.errorString().toStdString());
}

void draft(const QUrl &pdf, const QUrl &dtd, const QUrl &map)
{
    //! [draft]
    const auto document = Tavrin::CachingPDFDocument::open(pdf);
    const Tavrin::MapDraft draft = Tavrin::MapDrafter::draft(document, pdf.fileName());
    for (const QString &remark : draft.remarks)
        QTextStream(stderr) << remark << '\n';
    const auto specification = Tavrin::MapDrafter::specification(draft, document);
    write(specification->writeSpecToXMLString(dtd), map);
    //! [draft]
}

std::shared_ptr<Tavrin::PDFSpecification> enhance(const QUrl &map, const QUrl &dtd, const QUrl &pdf)
{
    //! [enhance]
    const auto configure = [](Tavrin::PDFXMLEnhancer &made) {
        made.setReadingPolicy(Tavrin::PDFReadingPolicy::Common);
        made.setRequiredLinkMarkers({});
    };
    const auto enhancer =
        Tavrin::PDFXMLEnhancer::matched<Tavrin::PDFXMLEnhancer>(map, pdf, configure);
    enhancer->loadStructure();
    write(enhancer->writeSpecToXMLString(dtd), map);
    //! [enhance]
    return enhancer;
}

bool audit(const std::shared_ptr<Tavrin::PDFSpecification> &specification, const QString &path)
{
    //! [audit]
    QFile list(path);
    if (!list.open(QFile::ReadOnly))
        throw std::runtime_error(list.errorString().toStdString());
    const auto references = Tavrin::AuditReferenceList::parse(list.readAll(), path);

    Tavrin::AuditDemands demands;
    demands.minimumCoverage = 5;
    const Tavrin::AuditReport report =
        Tavrin::PDFSpecAuditor(specification).report(references, demands);
    for (const QString &line : Tavrin::AuditSentences::counts(report))
        QTextStream(stdout) << line << '\n';
    for (const auto &unknown : report.unknown)
        QTextStream(stdout) << Tavrin::AuditSentences::unknown(unknown) << '\n';

    Tavrin::PDFSpecAuditor::write(report, Tavrin::AuditFormat::JUnit,
                                  QUrl::fromLocalFile(path + QStringLiteral(".xml")));
    return report.areDemandsMet();
    //! [audit]
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto argument = [&](int index) { return QUrl::fromLocalFile(arguments.at(index)); };
    try {
        draft(argument(1), argument(2), argument(3));
        const auto specification = enhance(argument(3), argument(2), argument(1));
        return audit(specification, arguments.at(4)) ? 0 : 1;
    } catch (const std::exception &error) {
        QTextStream(stderr) << QString::fromUtf8(error.what()) << '\n';
        return 2;
    }
}
