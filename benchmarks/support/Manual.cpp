// SPDX-License-Identifier: Apache-2.0
#include <support/Manual.h>

#include <QUrl>

namespace Tavrin::Benchmarks
{

Manual::Manual(const QString &path) : specification(Specification::make<PDFSpecification>())
{
    const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(path));
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    specification->loadPDFStructure(document);
    if (const auto root = document->outlineRoot()) {
        for (const auto &item : specification->recursivelyCollectChildren(*root))
            add(item);
    }
    // Once more, so that the entries find their places.
    specification->loadPDFStructure(document);
}

void Manual::add(const HostPDFOutline &item)
{
    const auto place = specification->destination(item);
    if (!place || !place->page())
        return;
    const auto number = entries.size();
    auto entry = std::make_shared<PDFSpecification::Entry>(
        specification, QString::number(number), item.label().value_or(QString()),
        SpecificationEntryType::Section, std::vector<int>{static_cast<int>(number)});
    entry->setInternalLink(specification->internalLink(*place));
    specification->add(entry);
    entries.push_back(entry);
}

} // namespace Tavrin::Benchmarks
