// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/ViewControllerFactory.h>
#include <Tavrin/pdfspec/DestinationReader.h>
#include <Tavrin/pdfspec/InternalLink.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/pdfspec/PageTreeReader.h>
#include <Tavrin/pdfspec/PrintReader.h>
#include <Tavrin/platform/DecimalForm.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/StandardError.h>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using PDFEntryPtr = std::shared_ptr<PDFSpecification::Entry>;

bool beginsBefore(const PDFEntryPtr &a, const PDFEntryPtr &b)
{
    return std::is_lt(a->destination()->compare(*b->destination()));
}

/// A map that was made for the strict reading may count on names. Of other documents many have
/// none, and nothing is wrong with them.
void tellNoNames(PDFReadingPolicy policy)
{
    const QString message =
        u"No way to get named destinations - the PDF catalog doesn't contain a destinations tree "
        "or a name tree. Only outline and page/point-based internal links will work."_s;
    if (policy == PDFReadingPolicy::Strict)
        standardError(message);
    else
        qCDebug(pdfLog).noquote() << message;
}

/// Turns each form of link into a place.
struct LinkResolver {
    using Place = std::optional<HostPDFDestination>;

    const PDFSpecification &specification;
    PDFSpecification::PageRects *pageRects;

    Place at(int page, Point point) const
    {
        const auto &document = specification.document();
        auto hostPage = document ? document->page(page) : nullptr;
        return hostPage ? Place(HostPDFDestination(std::move(hostPage), point)) : std::nullopt;
    }

    Place operator()(const InternalLink::Outline &link) const
    {
        const auto items = specification.documentOutline();
        const auto item = items.constFind(link.label);
        return item == items.constEnd() ? std::nullopt : specification.destination(*item);
    }

    Place operator()(const InternalLink::Place &link) const { return at(link.page, link.point); }

    Place operator()(const InternalLink::Rects &link) const
    {
        if (pageRects)
            *pageRects = link.rects;
        if (link.rects.empty())
            return std::nullopt;
        const auto &[page, rect] = *link.rects.begin();
        return at(page, {rect.minX(), rect.maxY()});
    }

    Place operator()(const InternalLink::Named &link) const
    {
        const auto &places = specification.linkDestinationMapping();
        const auto place = places.constFind(link.name);
        return place == places.constEnd() ? std::nullopt : Place(*place);
    }

    Place operator()(const InternalLink::Malformed &link) const
    {
        standardError(link.message);
        return std::nullopt;
    }
};

} // namespace

PDFSpecification::ParseError::ParseError(Kind errorKind, const QString &text)
    : std::runtime_error(text.isEmpty() ? "the PDF has no readable structure" : text.toStdString()),
      kind(errorKind),
      message(text)
{
}

PDFSpecification::PDFSpecification() : m_print(std::make_unique<PrintReader>(*this)) {}
PDFSpecification::~PDFSpecification() = default;

EntryClass PDFSpecification::entryClass() const
{
    return EntryClass::of<Entry>();
}

PDFSpecification::EntryPtr PDFSpecification::entry(const QString &label)
{
    EntryPtr found = Specification::entry(label);
    const auto components = SpecURL::components(label);
    if (!components || components->size() < 5)
        return found;
    const auto lower = parseInteger((*components)[3]);
    const auto upper = parseInteger((*components)[4]);
    if (!lower || !upper)
        return found;
    if (*upper < *lower)
        qFatal("A spec URL names a range of lines that ends before it begins");
    const auto parent = std::dynamic_pointer_cast<Entry>(found);
    if (!parent)
        return found;
    const auto child = parent->childEntry({*lower, *upper});
    initializeEntry(*child);
    return child;
}

QString PDFSpecification::generateURL(const SpecificationEntry &entry, bool constrainSpecID,
                                      bool constrainSpecRevision) const
{
    QString url = Specification::generateURL(entry, constrainSpecID, constrainSpecRevision);
    const auto *pdfEntry = dynamic_cast<const Entry *>(&entry);
    if (!pdfEntry || !pdfEntry->lineRange())
        return url;
    QString base = SpecURL::shortForm(entry.label());
    if (!SpecURL::isValidBase(base)) {
        qCWarning(pdfLog, "Couldn't get URL from base string");
        return base;
    }
    const auto [lower, upper] = *pdfEntry->lineRange();
    return SpecURL::appending(SpecURL::appending(url, QString::number(lower)),
                              QString::number(upper));
}

ViewControllerPtr PDFSpecification::detailViewController(const std::optional<QString> &label)
{
    auto *factory = viewControllerFactory();
    if (!factory || !areFileRequirementsSatisfied())
        return nullptr;
    const EntryPtr found = label ? entry(*label) : nullptr;
    return found || !label ? factory->pdfDetail(shared_from_this(), found) : nullptr;
}

// What PDF adds to the map

bool PDFSpecification::parseXMLEntryChild(const HostXMLNode &child, SpecificationEntry &entry)
{
    if (child.name() != u"internal"_s)
        return Specification::parseXMLEntryChild(child, entry);
    if (auto *pdfEntry = dynamic_cast<Entry *>(&entry))
        pdfEntry->setInternalLink(child.stringValue());
    return true;
}

HostXMLElement PDFSpecification::xmlElement(const SpecificationEntry &entry) const
{
    HostXMLElement element = Specification::xmlElement(entry);
    const auto *pdfEntry = dynamic_cast<const Entry *>(&entry);
    if (pdfEntry && pdfEntry->internalLink())
        element.append(HostXMLElement::element(u"internal"_s, *pdfEntry->internalLink()));
    return element;
}

HostXMLElement PDFSpecification::generateRootXMLElement() const
{
    HostXMLElement root = Specification::generateRootXMLElement();
    for (HostXMLNode &child : root.children()) {
        if (child.name() != u"name"_s)
            continue;
        const bool bound = m_cachingDocument != nullptr;
        child.setStringValue(bound ? m_cachingDocument->documentAttributes().value(u"Title"_s)
                                   : QString());
        break;
    }
    return root;
}

std::vector<HostXMLElement> PDFSpecification::generateAuxiliaryFileRequirementXMLNodes() const
{
    const auto text = m_cachingDocument ? m_cachingDocument->textForPage(0) : std::nullopt;
    if (!text)
        return {};
    QStringList numbers;
    if (m_pageBounds) {
        for (const double number : {m_pageBounds->origin.x, m_pageBounds->origin.y,
                                    m_pageBounds->size.width, m_pageBounds->size.height})
            numbers += decimalForm(number);
    }
    HostXMLElement file = HostXMLElement::element(u"file"_s);
    file.setAttribute(u"type"_s, SpecificationAuxiliaryFileTypes::pdf);
    file.setAttribute(u"verifier"_s, formatVerifierText(*text).join(u','));
    file.setAttribute(u"read-info"_s, numbers.join(u','));
    return {file};
}

// Reading the document's structure

void PDFSpecification::loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document)
{
    auto caching = std::dynamic_pointer_cast<CachingPDFDocument>(document);
    if (!caching)
        return;
    const std::unique_lock lock(m_bindingMutex);
    m_cachingDocument = caching;
    m_print->forgetPages();
    const std::shared_ptr<const PDFObjectParser> parser(caching, &caching->objects());
    const auto handle = parser->catalog();
    if (!handle)
        throw ParseError(ParseError::Kind::InvalidPDF);
    const PDFDictionary catalog({*handle, parser});
    const auto pages = catalog.object<PDFDictionary>("Pages");
    if (!pages) {
        throw ParseError(ParseError::Kind::StructureReadError,
                         u"The PDF document catalog doesn't have a page tree."_s);
    }
    m_pageDictionaries = readPageTree(pages);
    readNamedDestinations(catalog, caching);
    loadPDFEntryMetadata(*caching);
}

void PDFSpecification::readNamedDestinations(const PDFDictionary &catalog,
                                             const std::shared_ptr<CachingPDFDocument> &document)
{
    const DestinationReader reader(document, m_pageDictionaries, m_readingPolicy);
    const bool readsCommon = m_readingPolicy == PDFReadingPolicy::Common;
    const auto plain = catalog.object<PDFDictionary>("Dests");
    const auto names = catalog.object<PDFDictionary>("Names");
    const auto tree = names ? names->object<PDFDictionary>("Dests") : nullptr;
    m_linkDestinationMapping.clear();
    if (plain && readsCommon)
        m_linkDestinationMapping = reader.plainDictionary(*plain);
    if (plain && !readsCommon) {
        m_linkDestinationMapping = reader.nameTree(*plain);
    } else if (tree) {
        m_linkDestinationMapping.insert(reader.nameTree(*tree));
    } else if (names && !readsCommon) {
        throw ParseError(ParseError::Kind::StructureReadError,
                         u"The destination name tree wasn't found in either the top-level catalog "
                         "or within the name tree."_s);
    } else if (!plain) {
        tellNoNames(m_readingPolicy);
    }
}

void PDFSpecification::initializeEntry(Entry &entry)
{
    PageRects rects;
    entry.setDestination(destinationForLink(entry.internalLink().value_or(entry.label()), &rects));
    if (!rects.empty())
        entry.setDestinationRects(rects);
    // Weak: the block lives in an entry that the specification owns.
    const std::weak_ptr<Specification> self = weak_from_this();
    entry.setDisplayBlock([self](Entry &shown) {
        if (const auto specification = std::static_pointer_cast<PDFSpecification>(self.lock()))
            specification->loadPDFPreview(shown);
    });
}

void PDFSpecification::loadPDFEntryMetadata(const HostPDFDocument &document)
{
    std::vector<std::vector<PDFEntryPtr>> places(static_cast<std::size_t>(document.pageCount()));
    for (const auto &any : entries()) {
        const auto entry = std::dynamic_pointer_cast<Entry>(any);
        if (!entry)
            continue;
        initializeEntry(*entry);
        const auto &destination = entry->destination();
        const auto index = destination && destination->page()
                               ? document.indexForPage(*destination->page())
                               : std::nullopt;
        if (index)
            places[static_cast<std::size_t>(*index)].push_back(entry);
    }
    for (auto &page : places)
        std::stable_sort(page.begin(), page.end(), beginsBefore);
    m_sortedDestinations = std::move(places);
    m_print->forgetPages();
}

std::vector<PDFDictionaryPtr> PDFSpecification::readPageTree(const PDFDictionaryPtr &node) const
{
    return PageTreeReader::leaves(node);
}

QHash<QString, HostPDFDestination>
PDFSpecification::readDestinationNameTree(const PDFDictionary &tree,
                                          const std::vector<PDFDictionaryPtr> &pageDicts) const
{
    return DestinationReader(m_cachingDocument, pageDicts, m_readingPolicy).nameTree(tree);
}

std::optional<HostPDFDestination> PDFSpecification::destinationFromPDFRepresentation(
    const PDFArray &array, const std::vector<PDFDictionaryPtr> &pageDicts) const
{
    return DestinationReader(m_cachingDocument, pageDicts, m_readingPolicy).destination(array);
}

// Outline

std::optional<HostPDFDestination> PDFSpecification::destination(const HostPDFOutline &outline) const
{
    const auto own = outline.destination();
    return own || m_readingPolicy == PDFReadingPolicy::Strict ? own : outline.actionDestination();
}

std::vector<HostPDFOutline>
PDFSpecification::recursivelyCollectChildren(const HostPDFOutline &outline) const
{
    // An outline can be deeper than the stack allows, so the path is kept by hand.
    std::vector<HostPDFOutline> result;
    std::vector<HostPDFOutline> pending{outline};
    while (!pending.empty()) {
        const HostPDFOutline item = pending.back();
        pending.pop_back();
        if (destination(item))
            result.push_back(item);
        for (qsizetype index = item.numberOfChildren(); index-- > 0;) {
            if (const auto child = item.childAtIndex(index))
                pending.push_back(*child);
        }
    }
    return result;
}

QMap<QString, HostPDFOutline> PDFSpecification::parseOutline(const HostPDFDocument &document) const
{
    QMap<QString, HostPDFOutline> items;
    const auto root = document.outlineRoot();
    if (!root)
        return items;
    for (const HostPDFOutline &item : recursivelyCollectChildren(*root)) {
        if (const auto label = item.label())
            items.insert(*label, item);
    }
    return items;
}

QMap<QString, HostPDFOutline> PDFSpecification::documentOutline() const
{
    if (!m_documentOutline && m_cachingDocument)
        m_documentOutline = parseOutline(*m_cachingDocument);
    return m_documentOutline.value_or(QMap<QString, HostPDFOutline>());
}

void PDFSpecification::setDocumentOutline(const QMap<QString, HostPDFOutline> &outline)
{
    m_documentOutline = outline;
}

// Links

std::optional<HostPDFDestination> PDFSpecification::destinationForLink(const QString &link,
                                                                       PageRects *pageRects) const
{
    return std::visit(LinkResolver{*this, pageRects}, InternalLink::parse(link));
}

QString PDFSpecification::internalLink(const HostPDFOutline &outline) const
{
    return InternalLink::printOutline(outline.label().value_or(QString()));
}

QString PDFSpecification::internalLink(const HostPDFDestination &destination) const
{
    const bool known = m_cachingDocument && destination.page();
    const auto index = known ? m_cachingDocument->indexForPage(*destination.page()) : std::nullopt;
    return InternalLink::printPlace(index.value_or(0), destination.point());
}

QString PDFSpecification::internalLink(const PageRects &rectangles) const
{
    return InternalLink::printRects(rectangles);
}

std::optional<HostPDFDestination> PDFSpecification::destination(const QString &label)
{
    const auto found = std::dynamic_pointer_cast<Entry>(entry(label));
    if (found && found->destination())
        return found->destination();
    return destinationForLink(label);
}

} // namespace Tavrin
