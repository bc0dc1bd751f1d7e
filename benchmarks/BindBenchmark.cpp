// SPDX-License-Identifier: Apache-2.0
// Binding a document with 6,249 named destinations to a map of all its outline's entries, against
// the engine opening it twice and reading its page tree and its name tree.
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <stdexcept>

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <support/BareEngine.h>
#include <support/Figures.h>
#include <support/RatioBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

/// A map of the document, drafted once.
class Map
{
public:
    explicit Map(const QString &pdf) : m_path(m_directory.filePath(u"map.xml"_s))
    {
        const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(pdf));
        const auto draft = MapDrafter::draft(document, u"ngspice"_s);
        const QUrl dtd = QUrl::fromLocalFile(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"));
        QFile file(m_path);
        const QString text = MapDrafter::specification(draft, document)->writeSpecToXMLString(dtd);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            throw std::runtime_error("the map can't be written");
    }

    std::shared_ptr<PDFSpecification> specification() const
    {
        auto result = Specification::make<PDFSpecification>(QUrl::fromLocalFile(m_path));
        result->setReadingPolicy(PDFReadingPolicy::Common);
        result->loadStructure();
        return result;
    }

private:
    QTemporaryDir m_directory;
    QString m_path;
};

void bareReading(const QString &path)
{
    {
        const BareEngine first(path);
    }
    const BareEngine engine(path);
    benchmark::DoNotOptimize(engine.readPageTree());
    benchmark::DoNotOptimize(engine.readNames());
}

void bindTo(PDFSpecification &specification, const QString &path)
{
    // A requirement is bound once; so the assignment is made past it.
    const auto &requirement = *specification.auxiliaryFileRequirements().front();
    if (!specification.assignAuxiliaryFile(QUrl::fromLocalFile(path), requirement))
        throw std::runtime_error("the document is not recognised");
}

} // namespace

void registerBindFigures()
{
    const QString path = corpusDocument(u"ngspice.pdf"_s);
    if (path.isEmpty())
        return;
    const auto specification = Map(path).specification();
    registerRatio({"bind a manual with 6,249 destinations / engine", 3,
                   [path] { bareReading(path); },
                   [path, specification] { bindTo(*specification, path); }});
}

} // namespace Tavrin::Benchmarks
