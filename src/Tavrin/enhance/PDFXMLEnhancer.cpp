// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/PDFXMLEnhancer.h>

#include <QFileInfo>

#include <algorithm>
#include <limits>

#include <Tavrin/enhance/AssociatedEntries.h>
#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/LinkPairing.h>
#include <Tavrin/enhance/StopWords.h>
#include <Tavrin/enhance/TermCounter.h>
#include <Tavrin/model/SpecMapText.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>
#include <Tavrin/platform/TerminalStyle.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Type = SpecificationEntryType;

QString markerOf(Type type)
{
    switch (type) {
    case Type::Section:
        return u"SLK"_s;
    case Type::Chapter:
        return u"CLK"_s;
    case Type::Figure:
        return u"FLK"_s;
    case Type::Table:
        break;
    }
    return u"TLK"_s;
}

/// Sets a flag while it lives.
class FlagGuard
{
public:
    explicit FlagGuard(bool &flag) : m_flag(flag) { m_flag = true; }
    ~FlagGuard() { m_flag = false; }
    FlagGuard(const FlagGuard &) = delete;
    FlagGuard &operator=(const FlagGuard &) = delete;

private:
    bool &m_flag;
};

/// Places in their order; where two entries have one place, by number and label.
bool isBefore(const PDFXMLEnhancer::PDFEntryPtr &a, const PDFXMLEnhancer::PDFEntryPtr &b)
{
    const auto order = a->destination()->compare(*b->destination());
    if (std::is_neq(order))
        return std::is_lt(order);
    return std::pair(a->index(), a->label()) < std::pair(b->index(), b->label());
}

} // namespace

EnhancerParseError::EnhancerParseError(Kind errorKind)
    : std::runtime_error("The PDF has no named destinations, and the map has no links"),
      kind(errorKind)
{
}

PDFXMLEnhancer::PDFXMLEnhancer()
    : m_entryTypeMarkers{{u"SLK"_s, Type::Section},
                         {u"CLK"_s, Type::Chapter},
                         {u"FLK"_s, Type::Figure},
                         {u"TLK"_s, Type::Table}},
      m_ignoreLinkMarkers{u"PART"_s, u"TITLEPAGE"_s, u"LOFAT"_s, u"TOC"_s},
      m_requiredLinkMarkers{u"ondry_ref"_s},
      m_terminatorCharacters{u"\n"_s, u"\t"_s},
      m_keywordClasses{LinguisticTag::Verb, LinguisticTag::Noun, LinguisticTag::Adjective},
      m_phraseClasses{LinguisticTag::Noun, LinguisticTag::Adjective, LinguisticTag::Number}
{
}

PDFXMLEnhancer::~PDFXMLEnhancer() = default;

EntryClass PDFXMLEnhancer::entryClass() const
{
    return EntryClass::of<EntryGraphNode>();
}

void PDFXMLEnhancer::matchWith(const QUrl &pdfFile)
{
    if (auxiliaryFileRequirements().empty()) {
        addAuxiliaryFileRequirement(std::make_shared<AuxiliaryFileRequirement>(
            SpecificationAuxiliaryFileTypes::pdf, QString(), QString()));
    }
    setPDFURL(pdfFile);
}

const QStringList &PDFXMLEnhancer::stopWords()
{
    if (!m_stopWords)
        m_stopWords = readStopWords();
    return *m_stopWords;
}

// Loading

void PDFXMLEnhancer::loadStructure()
{
    // Binding a file loads the structure of a specification without entries.
    if (m_isLoading)
        return;
    const FlagGuard guard(m_isLoading);
    PDFSpecification::loadStructure();
    const auto pdf = pdfURL();
    if (!pdf) {
        standardError(red(u"No PDF file provided to this XML enhancer."_s));
        return;
    }
    readRequiredPageBounds();
    claimAuxiliaryFile(*pdf);
}

/// Binding reads the printed area last, and keywords would be made of running heads.
void PDFXMLEnhancer::readRequiredPageBounds()
{
    for (const auto &requirement : auxiliaryFileRequirements()) {
        if (!requirement->isSatisfied() && !requirement->readInfo.isEmpty())
            readPageBounds(requirement->readInfo);
    }
}

bool PDFXMLEnhancer::doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement)
{
    return QFileInfo(url.path()).suffix() == "pdf"_L1 ||
           PDFSpecification::doesAuxiliaryFile(url, requirement);
}

void PDFXMLEnhancer::loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document)
{
    PDFSpecification::loadPDFStructure(document);
    m_internalLinksByPage.assign(static_cast<std::size_t>(document->pageCount()), {});
    if (!linkDestinationMapping().isEmpty())
        collectInternalLinks(*document);
    else if (!hasInternalLink())
        throw EnhancerParseError(EnhancerParseError::Kind::NoInternalLinks);
    augmentSpecEntryMetadata(document);
}

void PDFXMLEnhancer::collectInternalLinks(const HostPDFDocument &document)
{
    const auto &mapping = linkDestinationMapping();
    for (auto link = mapping.begin(); link != mapping.end(); ++link) {
        const auto &page = link.value().page();
        const auto index = page ? document.indexForPage(*page) : std::nullopt;
        if (index)
            m_internalLinksByPage[static_cast<std::size_t>(*index)].emplace_back(link.key(),
                                                                                 link.value());
    }
    for (auto &links : m_internalLinksByPage) {
        // The table of names has no order of its own.
        std::sort(links.begin(), links.end(), [](const NamedPlace &a, const NamedPlace &b) {
            const auto order = a.second.compare(b.second);
            return std::is_neq(order) ? std::is_lt(order) : a.first < b.first;
        });
    }
}

bool PDFXMLEnhancer::hasInternalLink() const
{
    return std::any_of(entries().begin(), entries().end(), [](const EntryPtr &entry) {
        const auto *inPDF = dynamic_cast<const PDFSpecification::Entry *>(entry.get());
        return inPDF && inPDF->internalLink();
    });
}

void PDFXMLEnhancer::augmentSpecEntryMetadata(const std::shared_ptr<HostPDFDocument> &document)
{
    m_labelLinkMapping = pairHumanReadableLabelsWithInternalLinks(document);
    if (m_labelLinkMapping && !m_labelLinkMapping->isEmpty()) {
        for (const auto &any : entries()) {
            const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(any);
            if (!entry)
                continue;
            const auto link = m_labelLinkMapping->constFind(entry->label());
            entry->setInternalLink(link == m_labelLinkMapping->constEnd() ? std::nullopt
                                                                          : std::optional(*link));
        }
    }
    loadPDFEntryMetadata(*document);
    standardOutput(bold(u"Extracting keywords..."_s));
    extractEntryKeywords();
    standardOutput(bold(u"Computing related items..."_s));
    computeRelatedEntries();
}

// Links

PDFXMLEnhancer::LabelLinkMapping
PDFXMLEnhancer::pairHumanReadableLabelsWithInternalLinks(const std::shared_ptr<HostPDFDocument> &)
{
    return LinkPairing::pair(entries(), m_internalLinksByPage,
                             {entryTypeMarkers(), ignoreLinkMarkers(), requiredLinkMarkers()});
}

std::optional<QString> PDFXMLEnhancer::closestInternalLink(double y, int page, Type type) const
{
    if (page < 0 || static_cast<std::size_t>(page) >= m_internalLinksByPage.size())
        qFatal("A link is looked for on a page that the document doesn't have");
    const QString marker = markerOf(type);
    double best = std::numeric_limits<double>::max();
    QString closest;
    for (const auto &[name, place] : m_internalLinksByPage[static_cast<std::size_t>(page)]) {
        const double distance = std::abs(y - place.point().y);
        if (!name.contains(marker) || !(distance < best))
            continue;
        best = distance;
        closest = name;
    }
    return closest.isEmpty() ? std::nullopt : std::optional(closest);
}

const std::vector<PDFXMLEnhancer::PDFEntryPtr> &PDFXMLEnhancer::sortedEntries()
{
    static const std::vector<PDFEntryPtr> none;
    if (m_sortedEntries)
        return *m_sortedEntries;
    // Each placed entry takes those behind it that have no place along.
    std::vector<std::vector<PDFEntryPtr>> groups;
    for (const auto &any : entries()) {
        const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(any);
        if (!entry)
            return none;
        if (groups.empty() || entry->destination())
            groups.emplace_back();
        groups.back().push_back(entry);
    }
    const auto firstPlaced =
        groups.begin() + (groups.empty() || groups.front().front()->destination() ? 0 : 1);
    std::stable_sort(firstPlaced, groups.end(),
                     [](const auto &a, const auto &b) { return isBefore(a.front(), b.front()); });
    m_sortedEntries.emplace();
    for (const auto &group : groups)
        m_sortedEntries->insert(m_sortedEntries->end(), group.begin(), group.end());
    return *m_sortedEntries;
}

void PDFXMLEnhancer::setSortedEntries(const std::vector<PDFEntryPtr> &sorted)
{
    m_sortedEntries = sorted;
}

// The map

PDFXMLEnhancer::EntryPtr PDFXMLEnhancer::parseXMLEntry(const HostXMLNode &element)
{
    EntryPtr entry = PDFSpecification::parseXMLEntry(element);
    HostXMLNode changed = element;
    if (const auto internal = SpecMapText::firstNamed(element.children(), u"internal"_s))
        changed.remove(*internal);
    if (m_labelLinkMapping && m_labelLinkMapping->contains(entry->label())) {
        changed.append(
            HostXMLElement::element(u"internal"_s, m_labelLinkMapping->value(entry->label())));
    }
    return entry;
}

HostXMLElement PDFXMLEnhancer::generateRootXMLElement() const
{
    HostXMLElement root = PDFSpecification::generateRootXMLElement();
    if (auto name = SpecMapText::firstNamed(root.children(), u"name"_s))
        name->setStringValue(title());
    return root;
}

} // namespace Tavrin
