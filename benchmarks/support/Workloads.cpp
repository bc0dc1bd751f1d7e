// SPDX-License-Identifier: Apache-2.0
#include <support/Workloads.h>

#include <QFile>

#include <stdexcept>

#include <Tavrin/drafting/MapDrafter.h>

#include <support/BareEngine.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

Skeleton::Skeleton(const QString &pdf)
{
    const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(pdf));
    const auto draft = MapDrafter::draft(document, u"manual"_s);
    const QUrl dtd = QUrl::fromLocalFile(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"));
    const QString text = MapDrafter::specification(draft, document)->writeSpecToXMLString(dtd);
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        throw std::runtime_error("the map can't be written");
}

std::shared_ptr<PDFSpecification> bound(const QString &map, const QString &pdf)
{
    auto specification = Specification::make<PDFSpecification>(
        QUrl::fromLocalFile(map), {}, {},
        [](PDFSpecification &one) { one.setReadingPolicy(PDFReadingPolicy::Common); });
    specification->loadStructure();
    specification->claimAuxiliaryFile(QUrl::fromLocalFile(pdf));
    return specification;
}

std::shared_ptr<PDFXMLEnhancer> enhanced(const QString &skeleton, const QString &pdf)
{
    auto enhancer = PDFXMLEnhancer::matched<PDFXMLEnhancer>(
        QUrl::fromLocalFile(skeleton), QUrl::fromLocalFile(pdf),
        [](PDFXMLEnhancer &one) { one.setReadingPolicy(PDFReadingPolicy::Common); });
    enhancer->loadStructure();
    return enhancer;
}

void bareTextPass(const QString &pdf)
{
    const BareEngine engine(pdf);
    for (int index = 0; index < engine.pageCount(); ++index)
        fz_drop_stext_page(engine.context, engine.structuredText(index));
}

} // namespace Tavrin::Benchmarks
