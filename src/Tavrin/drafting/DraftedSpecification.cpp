// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/DraftedSpecification.h>

#include <Tavrin/pdfspec/InternalLink.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include <algorithm>

namespace Tavrin
{

std::shared_ptr<PDFSpecification>
DraftedSpecification::fromDraft(const MapDraft &draft,
                                const std::shared_ptr<CachingPDFDocument> &document)
{
    const auto specification = Specification::make<DraftedSpecification>();
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    specification->setTitle(draft.title);
    specification->setShortTitle(draft.shortTitle);
    specification->setIdentifier(draft.identifier);
    specification->setRevision(draft.revision);
    specification->setLanguage(draft.language);
    specification->setPageBounds(draft.pageBounds);
    for (const DraftEntry &drafted : draft.entries) {
        const auto entry =
            std::static_pointer_cast<PDFSpecification::Entry>(specification->newEntry());
        entry->setType(drafted.type);
        entry->setIndex(drafted.index);
        entry->setLabel(drafted.label);
        entry->setTitle(drafted.title);
        if (drafted.page >= 0)
            entry->setInternalLink(InternalLink::printPlace(drafted.page, drafted.place));
        specification->add(entry);
    }
    specification->loadPDFStructure(document);
    return specification;
}

HostXMLElement DraftedSpecification::generateRootXMLElement() const
{
    HostXMLElement root = PDFSpecification::generateRootXMLElement();
    auto children = root.children();
    const auto name = std::find_if(children.begin(), children.end(), [](const HostXMLNode &child) {
        return child.name() == QLatin1String("name");
    });
    if (name != children.end())
        name->setStringValue(title());
    return root;
}

} // namespace Tavrin
