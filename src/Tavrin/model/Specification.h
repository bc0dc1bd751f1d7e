// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <type_traits>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/AuxiliaryFileRequirement.h>
#include <Tavrin/model/EntryClass.h>
#include <Tavrin/model/EntryTable.h>
#include <Tavrin/model/SearchOptions.h>
#include <Tavrin/model/SpecTypeDefinition.h>
#include <Tavrin/model/SpecificationEntry.h>
#include <Tavrin/model/ViewControllerPtr.h>
#include <Tavrin/platform/HostXMLDocument.h>

namespace Tavrin
{

class SpecificationRegistry;
class ViewControllerFactory;

/// A published specification, as a spec map describes it: its identity, the files it needs, and
/// its table of entries.
///
/// Reading goes in two steps. Making an object from a map reads the metadata alone; the table
/// follows with the first look-up that needs it, or with loadStructure(). Reading the metadata
/// again empties the table. What a failed reading has set stays set.
///
/// Always held by std::shared_ptr, made by make() or withStructureFile(). Used by one thread at a
/// time; searches may run elsewhere, and see the table as it is before or after each change of it.
class TAVRIN_CORE_EXPORT Specification : public std::enable_shared_from_this<Specification>
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// For make(): a specification is never made on its own.
    Specification();
    virtual ~Specification();
    Specification(const Specification &) = delete;
    Specification &operator=(const Specification &) = delete;

    /// Makes an object in two steps, so that the second may call what T overrides: constructs it,
    /// lets `configure` set it up, and calls initialize(). Throws what reading the map throws.
    template <class T>
    static std::shared_ptr<T>
    make(const std::optional<QUrl> &map = {}, const std::optional<QUrl> &dtd = {},
         const AuxiliaryFileRequirements &requirements = {},
         const std::function<void(std::type_identity_t<T> &)> &configure = {})
    {
        auto object = std::make_shared<T>();
        if (configure)
            configure(*object);
        static_cast<Specification &>(*object).initialize(map, dtd, requirements);
        return object;
    }

    /// Makes an object of the class that the registry chooses for the map. Throws XMLError and
    /// HostXMLError.
    static std::shared_ptr<Specification> withStructureFile(const QUrl &map,
                                                            const std::optional<QUrl> &dtd);

    /// Adds a class of specifications to the registry: in front of all others with `prioritize`,
    /// else behind them. The first whose predicate holds for a map's metadata reads the map.
    static void registerSpecType(const SpecType &type, bool prioritize,
                                 std::function<bool(const Specification &)> where);

    virtual const QString &title() const { return m_title; }
    /// Also becomes the short title if there is none.
    void setTitle(const QString &title);
    virtual const QString &shortTitle() const { return m_shortTitle; }
    void setShortTitle(const QString &title) { m_shortTitle = title; }
    virtual const QString &revision() const { return m_revision; }
    void setRevision(const QString &revision) { m_revision = revision; }
    virtual const QString &identifier() const { return m_identifier; }
    void setIdentifier(const QString &identifier) { m_identifier = identifier; }
    virtual const QString &variant() const { return m_variant; }
    void setVariant(const QString &variant) { m_variant = variant; }
    virtual const QString &language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }
    virtual const QString &version() const { return m_version; }
    void setVersion(const QString &version) { m_version = version; }
    /// Whether a summary or preview may be shown outside the document.
    virtual bool allowsPreviews() const { return m_allowsPreviews; }
    void setAllowsPreviews(bool allows) { m_allowsPreviews = allows; }

    virtual const std::optional<QUrl> &specMapURL() const { return m_specMapURL; }
    virtual const std::optional<QUrl> &dtdURL() const { return m_dtdURL; }

    const AuxiliaryFileRequirements &auxiliaryFileRequirements() const { return m_requirements; }

    /// The table, as far as it is loaded.
    virtual const EntryTable &entries() const { return m_entries; }
    /// The class of entries that the reader and newEntry() make.
    virtual EntryClass entryClass() const;
    virtual qsizetype entryCount() const { return m_entries.size(); }

    /// The entry for a label, a label in other case, or a spec URL; null if there is none. Loads
    /// the table if it is empty and no file is missing; a failure of that load is not told.
    virtual EntryPtr entry(const QString &label);

    /// Does nothing if the entry's label is taken.
    virtual void add(const EntryPtr &entry);
    /// Removes whatever is stored under the entry's present label.
    virtual void remove(const SpecificationEntry &entry);
    /// A fresh entry, in no table yet.
    virtual EntryPtr newEntry();

    /// The entries that hold every term of the text, best first. Without terms all entries.
    virtual std::vector<EntryPtr> searchEntries(const QString &text, SearchOptions options) const;

    /// How well one term, folded as the options want it, matches one text of an entry, or without
    /// a text all that the entry is searched by. From 0 (no match) to 1 for each text.
    virtual float searchRelevance(const SpecificationEntry &entry, const QString &term,
                                  SearchOptions options,
                                  const std::optional<QString> &entryText = {}) const;

    /// At most `resultCount` entries whose words are most like those of the text.
    virtual std::vector<EntryPtr> mostSimilarEntries(const QString &text, int resultCount) const;

    /// The spec URL of an entry, bound to identifier and revision as asked.
    virtual QString generateURL(const SpecificationEntry &entry, bool constrainSpecID,
                                bool constrainSpecRevision) const;
    /// The short form: any specification that has the label.
    QString generateURL(const QString &label) const;
    const QString &specURLPrefix() const;
    const QString &specURLWildcard() const;

    /// Opens a map and validates it: against its own DTD if it names or holds one, else against
    /// the given one. Throws XMLError if there is neither, and HostXMLError.
    static HostXMLDocument loadValidatedXMLDocument(const QUrl &map,
                                                    const std::optional<QUrl> &dtd);

    /// Reads the whole map again; does nothing without one.
    virtual void loadStructure();
    virtual void loadStructure(const HostXMLDocument &document);
    virtual void loadStructure(const QUrl &map, const std::optional<QUrl> &dtd);
    virtual void loadMetadata(const QUrl &map, const std::optional<QUrl> &dtd);
    virtual void loadMetadata(const HostXMLDocument &document);
    virtual void parseXMLEntries(const HostXMLNode &toc);
    virtual EntryPtr parseXMLEntry(const HostXMLNode &element);
    /// Whether the child was one that this class knows.
    virtual bool parseXMLEntryChild(const HostXMLNode &child, SpecificationEntry &entry);

    /// The map as text; with a DTD, that is made part of it. Throws HostXMLError if the DTD can't
    /// be read.
    virtual QString writeSpecToXMLString(const std::optional<QUrl> &dtd) const;
    virtual HostXMLElement generateRootXMLElement() const;
    virtual std::vector<HostXMLElement> generateAuxiliaryFileRequirementXMLNodes() const;
    virtual HostXMLElement xmlElement(const SpecificationEntry &entry) const;

    /// Whether every requirement has its file.
    virtual bool areFileRequirementsSatisfied() const;
    /// Binds a file to the first open requirement that takes it; false if none does. Throws what
    /// binding throws.
    virtual bool claimAuxiliaryFile(const QUrl &url);
    /// Whether claimAuxiliaryFile would find a requirement for the file.
    virtual bool isAuxiliaryFileCompatible(const QUrl &url);
    /// Whether the file is what the requirement asks for. This class knows no files.
    virtual bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement);
    /// Does what binding takes, opening the file for example; true if the requirement is met.
    virtual bool assignAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement);

    /// Who keeps this specification, for what is asked of others than itself; null while nobody
    /// does, and once that one is gone. Any thread.
    std::shared_ptr<const SpecificationRegistry> registry() const;
    /// For those who keep specifications: on registering, and null on giving up.
    void setRegistry(const std::shared_ptr<const SpecificationRegistry> &registry);

    /// A summary of the entry for a label or spec URL; null if there is none, a file is missing, or
    /// the process has no windows. Main thread.
    virtual ViewControllerPtr summaryViewController(const QString &label);
    /// A detail view at the entry for a label or spec URL, or without one of the whole; null if
    /// there is none. This class has none. Main thread.
    virtual ViewControllerPtr detailViewController(const std::optional<QString> &label = {});

    /// For diagnostics.
    QString debugDescription() const;

protected:
    /// The second step of making: keeps the locations and reads the metadata of the map, if there
    /// is one.
    virtual void initialize(const std::optional<QUrl> &map, const std::optional<QUrl> &dtd,
                            const AuxiliaryFileRequirements &requirements);

    /// Asks for one more file, as a map would.
    void addAuxiliaryFileRequirement(const std::shared_ptr<AuxiliaryFileRequirement> &requirement)
    {
        m_requirements.push_back(requirement);
    }

    /// Who makes views of this specification: its registry's factory, without a registry the
    /// installed one. Null without windows.
    ViewControllerFactory *viewControllerFactory() const;

private:
    void readRequirements(const HostXMLDocument &document);
    void readRootAttributes(const HostXMLNode &root);
    void readNoPreviews(const QString &value);
    void readTitles(const std::vector<HostXMLNode> &rootChildren);

    QString m_title;
    QString m_shortTitle;
    QString m_revision;
    QString m_identifier;
    QString m_variant;
    QString m_language;
    QString m_version;
    bool m_allowsPreviews = true;
    std::optional<QUrl> m_specMapURL;
    std::optional<QUrl> m_dtdURL;
    EntryTable m_entries;
    /// Held by changes of the table, and shared by searches.
    mutable std::shared_mutex m_tableMutex;
    AuxiliaryFileRequirements m_requirements;
    std::weak_ptr<const SpecificationRegistry> m_registry;
    mutable std::mutex m_registryMutex;
};

} // namespace Tavrin
