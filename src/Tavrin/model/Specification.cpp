// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/Specification.h>

#include <Tavrin/model/EntrySearch.h>
#include <Tavrin/model/MapReading.h>
#include <Tavrin/model/SpecMapText.h>
#include <Tavrin/model/SpecMapWriter.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/SpecificationRegistry.h>
#include <Tavrin/model/ViewControllerFactory.h>
#include <Tavrin/model/XMLBoolean.h>
#include <Tavrin/model/XMLError.h>
#include <Tavrin/platform/Logging.h>

#include <algorithm>
#include <mutex>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

std::vector<SpecTypeDefinition> &specTypes()
{
    static std::vector<SpecTypeDefinition> rows{builtinSpecTypeDefinition()};
    return rows;
}

[[noreturn]] void failSyntax(const QString &message)
{
    throw XMLError(XMLError::Kind::InvalidXMLSyntax, message);
}

std::vector<HostXMLNode> rootChildren(const HostXMLNode &root)
{
    auto children = root.children();
    if (children.empty())
        failSyntax(u"Root element has no children."_s);
    return children;
}

HostXMLNode rootOf(const HostXMLDocument &document)
{
    auto root = document.rootElement();
    if (!root)
        throw XMLError(XMLError::Kind::NoRootElement);
    return *root;
}

/// A map must not make its reader look up what ends a process.
void refuseReversedLines(const QStringList &references)
{
    for (const QString &reference : references) {
        if (SpecURL::hasReversedLines(reference)) {
            throw XMLError(
                XMLError::Kind::InvalidValue,
                u"%1 names a range of lines that ends before it begins."_s.arg(reference));
        }
    }
}

/// Reads a map so that an error says which.
template <class Reading>
void namingFile(const QUrl &map, Reading read)
{
    try {
        read();
    } catch (const XMLError &error) {
        throw XMLError(error.kind, error.message, map.toLocalFile());
    }
}

} // namespace

Specification::Specification() = default;
Specification::~Specification() = default;

void Specification::initialize(const std::optional<QUrl> &map, const std::optional<QUrl> &dtd,
                               const AuxiliaryFileRequirements & /*requirements*/)
{
    m_specMapURL = map;
    m_dtdURL = dtd;
    if (map)
        loadMetadata(*map, dtd);
}

std::shared_ptr<Specification> Specification::withStructureFile(const QUrl &map,
                                                                const std::optional<QUrl> &dtd)
{
    const MapReading once;
    const auto probe = make<Specification>(map, dtd);
    const auto &rows = specTypes();
    const auto row = std::find_if(rows.begin(), rows.end(), [&probe](const auto &definition) {
        return definition.predicate(*probe);
    });
    return row != rows.end() ? row->type.make(map, dtd) : make<Specification>(map, dtd);
}

void Specification::registerSpecType(const SpecType &type, bool prioritize,
                                     std::function<bool(const Specification &)> where)
{
    auto &rows = specTypes();
    rows.insert(prioritize ? rows.begin() : rows.end(), {type, std::move(where)});
}

void Specification::setTitle(const QString &title)
{
    m_title = title;
    if (m_shortTitle.isEmpty())
        m_shortTitle = title;
}

QString Specification::debugDescription() const
{
    return u"<%1: Version %2, containing %3 entries>"_s.arg(title(), revision())
        .arg(entries().size());
}

// Entries

EntryClass Specification::entryClass() const
{
    return EntryClass::of<SpecificationEntry>();
}

Specification::EntryPtr Specification::newEntry()
{
    return entryClass().make(shared_from_this());
}

void Specification::add(const EntryPtr &entry)
{
    const std::unique_lock lock(m_tableMutex);
    m_entries.insert(entry);
}

void Specification::remove(const SpecificationEntry &entry)
{
    const std::unique_lock lock(m_tableMutex);
    m_entries.remove(entry.label());
}

Specification::EntryPtr Specification::entry(const QString &label)
{
    if (entries().isEmpty() && areFileRequirementsSatisfied()) {
        try {
            loadStructure();
        } catch (const std::exception &) {
            // Whoever looks something up wants an answer from what there is.
        }
    }
    if (const auto components = SpecURL::components(label)) {
        const auto names = [&](qsizetype at, const QString &own) {
            return (*components)[at] == SpecURL::wildcard || (*components)[at] == own;
        };
        const bool isForeign =
            components->size() >= 3 && (!names(1, identifier()) || !names(2, revision()));
        return components->isEmpty() || isForeign ? nullptr : entry(components->front());
    }
    if (auto exact = entries().value(label))
        return exact;
    return entries().valueIgnoringCase(label);
}

std::vector<Specification::EntryPtr> Specification::searchEntries(const QString &text,
                                                                  SearchOptions options) const
{
    const std::shared_lock lock(m_tableMutex);
    return EntrySearch::search(*this, text, options);
}

float Specification::searchRelevance(const SpecificationEntry &entry, const QString &term,
                                     SearchOptions options,
                                     const std::optional<QString> &entryText) const
{
    if (entryText)
        return EntrySearch::relevance(term, *entryText);
    float sum = 0;
    for (const QString &item : entry.searchableItems()) {
        const bool asGiven = options.testFlag(SearchOption::CaseSensitive);
        sum += searchRelevance(entry, term, options, asGiven ? item : item.toLower());
    }
    return sum;
}

std::vector<Specification::EntryPtr> Specification::mostSimilarEntries(const QString &text,
                                                                       int resultCount) const
{
    const std::shared_lock lock(m_tableMutex);
    return EntrySearch::mostSimilar(*this, text, resultCount);
}

// Spec URLs

const QString &Specification::specURLPrefix() const
{
    return SpecURL::prefix;
}

const QString &Specification::specURLWildcard() const
{
    return SpecURL::wildcard;
}

QString Specification::generateURL(const QString &label) const
{
    return SpecURL::shortForm(label);
}

QString Specification::generateURL(const SpecificationEntry &entry, bool constrainSpecID,
                                   bool constrainSpecRevision) const
{
    QString base = SpecURL::shortForm(entry.label());
    if (!SpecURL::isValidBase(base)) {
        qCWarning(modelLog, "Couldn't get URL from base string");
        return base;
    }
    const auto owner = entry.specification();
    const auto component = [&owner](bool constrain,
                                    const QString &(Specification::*field)() const) {
        return constrain && owner ? (owner.get()->*field)() : SpecURL::wildcard;
    };
    const QString withID =
        SpecURL::appending(base, component(constrainSpecID, &Specification::identifier));
    return SpecURL::appending(withID, component(constrainSpecRevision, &Specification::revision));
}

// Reading

HostXMLDocument Specification::loadValidatedXMLDocument(const QUrl &map,
                                                        const std::optional<QUrl> &dtd)
{
    HostXMLDocument document = HostXMLDocument::open(map);
    if (!document.hasDTD()) {
        if (!dtd)
            throw XMLError(XMLError::Kind::NoDTDFound, {}, map.toLocalFile());
        document.attachDTD(*dtd, u"spec"_s);
    }
    document.validate();
    return document;
}

void Specification::loadMetadata(const QUrl &map, const std::optional<QUrl> &dtd)
{
    namingFile(map, [&] {
        const HostXMLDocument document = MapReading::document(map, dtd);
        loadMetadata(document);
        readRequirements(document);
    });
}

void Specification::loadStructure(const QUrl &map, const std::optional<QUrl> &dtd)
{
    namingFile(map, [&] {
        const HostXMLDocument document = MapReading::document(map, dtd);
        loadStructure(document);
        readRequirements(document);
    });
}

void Specification::loadStructure()
{
    if (const auto map = specMapURL())
        loadStructure(*map, dtdURL());
}

void Specification::readRequirements(const HostXMLDocument &document)
{
    // Requirements outlive a reload, and with them the files that are bound.
    if (m_requirements.empty())
        m_requirements = SpecMapText::requirements(document);
}

void Specification::loadMetadata(const HostXMLDocument &document)
{
    const HostXMLNode root = rootOf(document);
    {
        const std::unique_lock lock(m_tableMutex);
        m_entries.clear();
    }
    setTitle(QString());
    m_identifier.clear();
    m_revision.clear();
    m_variant.clear();
    m_allowsPreviews = true;
    readRootAttributes(root);
    readTitles(rootChildren(root));
}

void Specification::readRootAttributes(const HostXMLNode &root)
{
    const auto attributes = root.attributes();
    if (attributes.empty())
        throw XMLError(XMLError::Kind::InvalidAttribute, u"Root element has no attributes."_s);
    for (const auto &[name, value] : attributes) {
        if (name == "id"_L1)
            m_identifier = value;
        else if (name == "revision"_L1)
            m_revision = value;
        else if (name == "variant"_L1)
            m_variant = value;
        else if (name == "lang"_L1)
            m_language = value;
        else if (name == "version"_L1)
            m_version = value;
        else if (name == "nopreviews"_L1)
            readNoPreviews(value);
    }
}

void Specification::readNoPreviews(const QString &value)
{
    const auto noPreviews = xmlBooleanFromText(value);
    if (!noPreviews) {
        throw XMLError(XMLError::Kind::InvalidValue,
                       u"Invalid boolean value: %1. Expected 1 or 0"_s.arg(value));
    }
    m_allowsPreviews = *noPreviews == XMLBoolean::False;
}

void Specification::readTitles(const std::vector<HostXMLNode> &rootChildren)
{
    const auto name = SpecMapText::firstNamed(rootChildren, u"name"_s);
    if (!name)
        failSyntax(u"No name element found."_s);
    if (const auto text = name->stringValue())
        setTitle(*text);
    const auto shortName = SpecMapText::firstNamed(rootChildren, u"shortname"_s);
    const auto text = shortName ? shortName->stringValue() : std::nullopt;
    setShortTitle(text.value_or(m_title));
}

void Specification::loadStructure(const HostXMLDocument &document)
{
    loadMetadata(document);
    const auto toc = SpecMapText::firstNamed(rootChildren(rootOf(document)), u"toc"_s);
    if (!toc)
        failSyntax(u"No TOC element found."_s);
    parseXMLEntries(*toc);
}

void Specification::parseXMLEntries(const HostXMLNode &toc)
{
    if (toc.name() != u"toc"_s) {
        throw XMLError(XMLError::Kind::InvalidKey, u"Node "_s + toc.xmlString() +
                                                       u" has invalid name "_s +
                                                       SpecMapText::debugName(toc.name()) + u'.');
    }
    const auto children = toc.children();
    if (children.empty())
        failSyntax(u"TOC element has no children."_s);
    for (const HostXMLNode &child : children) {
        if (child.name() != u"entry"_s) {
            throw XMLError(XMLError::Kind::InvalidKey,
                           u"Child of TOC element has inappropriate name "_s +
                               SpecMapText::debugName(child.name()) + u'.');
        }
        if (!child.isElement())
            failSyntax(u"Could not parse child of TOC element."_s);
        add(parseXMLEntry(child));
    }
}

Specification::EntryPtr Specification::parseXMLEntry(const HostXMLNode &element)
{
    const auto children = element.children();
    if (children.empty())
        failSyntax(u"Entry "_s + element.xmlString() + u" has no children."_s);
    EntryPtr entry = newEntry();
    if (const auto label = element.attribute("label"))
        entry->setLabel(*label);
    if (const auto text = element.attribute("type")) {
        if (const auto type = entryTypeFromText(*text))
            entry->setType(*type);
    }
    for (const HostXMLNode &child : children) {
        if (!parseXMLEntryChild(child, *entry)) {
            throw XMLError(XMLError::Kind::InvalidKey, u"Found unexpected key in entry: "_s +
                                                           SpecMapText::debugName(child.name()));
        }
    }
    refuseReversedLines(QStringList{entry->label(), SpecURL::shortForm(entry->label())} +
                        entry->relatedEntries());
    return entry;
}

bool Specification::parseXMLEntryChild(const HostXMLNode &child, SpecificationEntry &entry)
{
    const auto name = child.name();
    if (!name)
        throw XMLError(XMLError::Kind::InvalidKey, u"Child node of entry has invalid name."_s);
    if (*name == "related"_L1 && !child.children().empty()) {
        entry.setRelatedEntries(SpecMapText::relatedItems(child));
        return true;
    }
    const auto value = child.stringValue();
    if (!value)
        throw XMLError(XMLError::Kind::InvalidValue, u"Child node of entry has invalid value."_s);
    if (*name == "name"_L1)
        entry.setTitle(*value);
    else if (*name == "index"_L1)
        entry.setIndex(SpecMapText::index(*value));
    else if (*name == "keywords"_L1)
        entry.setKeywords(SpecMapText::keywords(*value));
    else
        return false;
    return true;
}

// Writing

QString Specification::writeSpecToXMLString(const std::optional<QUrl> &dtd) const
{
    HostXMLDocument document(generateRootXMLElement());
    if (dtd)
        document.attachDTD(*dtd, u"spec"_s);
    return SpecMapWriter::brokenIntoLines(document.xmlString());
}

HostXMLElement Specification::generateRootXMLElement() const
{
    return SpecMapWriter::rootElement(*this);
}

std::vector<HostXMLElement> Specification::generateAuxiliaryFileRequirementXMLNodes() const
{
    return {};
}

HostXMLElement Specification::xmlElement(const SpecificationEntry &entry) const
{
    return SpecMapWriter::entryElement(entry);
}

// Files

bool Specification::areFileRequirementsSatisfied() const
{
    return std::all_of(m_requirements.begin(), m_requirements.end(),
                       [](const auto &requirement) { return requirement->isSatisfied(); });
}

bool Specification::claimAuxiliaryFile(const QUrl &url)
{
    for (const auto &requirement : m_requirements) {
        if (!requirement->isSatisfied() && assignAuxiliaryFile(url, *requirement)) {
            requirement->fileURL = url;
            return true;
        }
    }
    return false;
}

bool Specification::isAuxiliaryFileCompatible(const QUrl &url)
{
    return std::any_of(m_requirements.begin(), m_requirements.end(), [&](const auto &requirement) {
        return !requirement->isSatisfied() && doesAuxiliaryFile(url, *requirement);
    });
}

bool Specification::doesAuxiliaryFile(const QUrl & /*url*/,
                                      const AuxiliaryFileRequirement & /*requirement*/)
{
    return false;
}

bool Specification::assignAuxiliaryFile(const QUrl & /*url*/,
                                        const AuxiliaryFileRequirement & /*requirement*/)
{
    return false;
}

// Others

std::shared_ptr<const SpecificationRegistry> Specification::registry() const
{
    const std::scoped_lock lock(m_registryMutex);
    return m_registry.lock();
}

void Specification::setRegistry(const std::shared_ptr<const SpecificationRegistry> &registry)
{
    const std::scoped_lock lock(m_registryMutex);
    m_registry = registry;
}

ViewControllerFactory *Specification::viewControllerFactory() const
{
    const auto keeper = registry();
    return keeper ? keeper->viewControllerFactory() : ViewControllerFactory::installed();
}

// Views

ViewControllerPtr Specification::summaryViewController(const QString &label)
{
    auto *factory = viewControllerFactory();
    if (!factory || !areFileRequirementsSatisfied())
        return nullptr;
    const EntryPtr found = entry(label);
    return found ? factory->summary(found) : nullptr;
}

ViewControllerPtr Specification::detailViewController(const std::optional<QString> & /*label*/)
{
    return nullptr;
}

} // namespace Tavrin
