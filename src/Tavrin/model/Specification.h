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
///
/// Hosts meet specifications in SpecificationManager, which makes and keeps them; those of
/// documents in PDF are PDFSpecification. A host with a kind of documents of its own derives from
/// this, says which files are its own, and registers the class before maps are loaded:
///
/// \snippet text-specification/TextSpecification.cpp register
///
/// A look-up loads the table on the thread that asks, so the first one takes as long as reading the
/// map.
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
    ///
    /// `configure` may be empty. Without a map the object is empty, and its requirements are those
    /// that it asks for itself; `requirements` is for classes that override initialize(), this one
    /// reads the map's.
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
    /// HostXMLError. A map that no class of the registry reads becomes a plain Specification, whose
    /// entries can be listed and searched. The metadata of the map are read, and not its table. In
    /// no manager: see SpecificationManager::registerSpecification.
    static std::shared_ptr<Specification> withStructureFile(const QUrl &map,
                                                            const std::optional<QUrl> &dtd);

    /// Adds a class of specifications to the registry: in front of all others with `prioritize`,
    /// else behind them. The first whose predicate holds for a map's metadata reads the map.
    ///
    /// At first there is one class: PDFSpecification for maps that need exactly one PDF. Counts for
    /// maps that are registered later. Not to be called while another thread makes specifications.
    static void registerSpecType(const SpecType &type, bool prioritize,
                                 std::function<bool(const Specification &)> where);

    /// The title of the document, from the map; empty until that is read.
    virtual const QString &title() const { return m_title; }
    /// Also becomes the short title if there is none.
    ///
    /// Changes this object, not the map that it came from.
    void setTitle(const QString &title);
    /// The title where space is scarce.
    virtual const QString &shortTitle() const { return m_shortTitle; }
    void setShortTitle(const QString &title) { m_shortTitle = title; }
    /// The edition, the third part of spec URLs. Compared exactly.
    virtual const QString &revision() const { return m_revision; }
    void setRevision(const QString &revision) { m_revision = revision; }
    /// Names the document whatever its revision, and is the second part of spec URLs. Compared
    /// exactly.
    virtual const QString &identifier() const { return m_identifier; }
    void setIdentifier(const QString &identifier) { m_identifier = identifier; }
    /// Tells apart documents of one revision; empty in most maps.
    virtual const QString &variant() const { return m_variant; }
    void setVariant(const QString &variant) { m_variant = variant; }
    /// As the map has it, "en" for example; empty where it says nothing.
    virtual const QString &language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }
    /// Of the map, not of the document.
    virtual const QString &version() const { return m_version; }
    void setVersion(const QString &version) { m_version = version; }
    /// Whether a summary or preview may be shown outside the document.
    ///
    /// Summaries and the reports of PDFSpecAuditor::write keep to it. Tables by
    /// auditCSVComponents() do not, nor do the texts of entries: a host that shows those itself
    /// asks this first.
    virtual bool allowsPreviews() const { return m_allowsPreviews; }
    void setAllowsPreviews(bool allows) { m_allowsPreviews = allows; }

    /// The map that it was made from; absent for one that was made without.
    virtual const std::optional<QUrl> &specMapURL() const { return m_specMapURL; }
    /// The DTD that was given along with the map; absent if none was.
    virtual const std::optional<QUrl> &dtdURL() const { return m_dtdURL; }

    /// The files that the document needs, in the order of the map, each with the file that is bound
    /// to it. Kept when the map is read again.
    const AuxiliaryFileRequirements &auxiliaryFileRequirements() const { return m_requirements; }

    /// The table, as far as it is loaded.
    ///
    /// Empty before the first look-up, or loadStructure(). The table lives as long as this;
    /// iterators over it end with its next change.
    virtual const EntryTable &entries() const { return m_entries; }
    /// The class of entries that the reader and newEntry() make.
    ///
    /// SpecificationEntry here; a subclass with entries of its own returns theirs.
    virtual EntryClass entryClass() const;
    /// How many entries are loaded.
    virtual qsizetype entryCount() const { return m_entries.size(); }

    /// The entry for a label, a label in other case, or a spec URL; null if there is none. Loads
    /// the table if it is empty and no file is missing; a failure of that load is not told.
    ///
    /// A spec URL that names another identifier or revision gives null. An entry spelled exactly so
    /// goes before one in other case. Neither a number as people write it nor a title is a label:
    /// see EntryFinder.
    virtual EntryPtr entry(const QString &label);

    /// Does nothing if the entry's label is taken.
    ///
    /// The entry should be one of newEntry(), since it knows its specification. Maps that are
    /// written later have it.
    virtual void add(const EntryPtr &entry);
    /// Removes whatever is stored under the entry's present label.
    ///
    /// For an entry whose label was changed since it was added, that is nothing, or another one.
    virtual void remove(const SpecificationEntry &entry);
    /// A fresh entry, in no table yet.
    ///
    /// Of entryClass(), with this as its specification.
    virtual EntryPtr newEntry();

    /// The entries that hold every term of the text, best first. Without terms all entries.
    ///
    /// A term is looked for in title, number and keywords, whole words and titles that it fills
    /// counting most; ties go to entries higher up in the numbering. Any thread. Searches what is
    /// loaded: call loadStructure(), or look something up, first. EntryFinder tells why an entry
    /// was found.
    virtual std::vector<EntryPtr> searchEntries(const QString &text, SearchOptions options) const;

    /// How well one term, folded as the options want it, matches one text of an entry, or without
    /// a text all that the entry is searched by. From 0 (no match) to 1 for each text.
    virtual float searchRelevance(const SpecificationEntry &entry, const QString &term,
                                  SearchOptions options,
                                  const std::optional<QString> &entryText = {}) const;

    /// At most `resultCount` entries whose words are most like those of the text.
    ///
    /// Most alike first, by the words that both have in common, long ones more than short ones;
    /// entries without any follow, up to the count. Any thread. What `tavrin similar` shows.
    virtual std::vector<EntryPtr> mostSimilarEntries(const QString &text, int resultCount) const;

    /// The spec URL of an entry, bound to identifier and revision as asked.
    ///
    /// What hosts store to cite an entry. With neither, any document with such a label answers;
    /// with the identifier alone, each revision of this one:
    ///
    ///     specification.generateURL(entry, true, false);   // "spec://4.2.1/manual/*"
    ///
    /// A label from which no such URL can be made, one with a colon for example, gives the short
    /// form, and a line in the log.
    virtual QString generateURL(const SpecificationEntry &entry, bool constrainSpecID,
                                bool constrainSpecRevision) const;
    /// The short form: any specification that has the label.
    ///
    /// The label need not exist.
    QString generateURL(const QString &label) const;
    const QString &specURLPrefix() const;
    const QString &specURLWildcard() const;

    /// Opens a map and validates it: against its own DTD if it names or holds one, else against
    /// the given one. Throws XMLError if there is neither, and HostXMLError.
    ///
    /// What all reading of maps begins with.
    static HostXMLDocument loadValidatedXMLDocument(const QUrl &map,
                                                    const std::optional<QUrl> &dtd);

    /// Reads the whole map again; does nothing without one.
    ///
    /// Entries that were there before are other objects afterwards, so pointers to them lead to the
    /// old ones. The files that are bound stay bound. Throws HostXMLError for a map that isn't
    /// valid, and leaves all as it was then, and XMLError for one that is no spec map: then the
    /// table ends at the fault.
    virtual void loadStructure();
    /// Reads metadata and table out of a document that has been validated. Requirements are left
    /// alone.
    virtual void loadStructure(const HostXMLDocument &document);
    /// Reads metadata, table and, if there are none yet, the requirements of a map. specMapURL()
    /// stays what it was.
    virtual void loadStructure(const QUrl &map, const std::optional<QUrl> &dtd);
    /// Reads the metadata of a map, and its requirements if there are none yet; empties the table.
    virtual void loadMetadata(const QUrl &map, const std::optional<QUrl> &dtd);
    /// Reads the metadata out of a document that has been validated; empties the table.
    virtual void loadMetadata(const HostXMLDocument &document);
    /// Adds the entries below a `toc` element. Throws XMLError at the first that is none; those
    /// before it stay.
    virtual void parseXMLEntries(const HostXMLNode &toc);
    /// Makes an entry of an `entry` element, in no table yet. Throws XMLError.
    virtual EntryPtr parseXMLEntry(const HostXMLNode &element);
    /// Whether the child was one that this class knows.
    ///
    /// A subclass whose maps hold more overrides it, and asks this for what it does not know.
    virtual bool parseXMLEntryChild(const HostXMLNode &child, SpecificationEntry &entry);

    /// The map as text; with a DTD, that is made part of it. Throws HostXMLError if the DTD can't
    /// be read.
    ///
    /// Entries come by kind and number. Elements begin lines. The file is not written: that is the
    /// host's. Attributes and elements that no class knows are lost.
    virtual QString writeSpecToXMLString(const std::optional<QUrl> &dtd) const;
    /// The root element with all that is below it.
    virtual HostXMLElement generateRootXMLElement() const;
    /// The `file` elements of the map. This class knows none: a subclass says what its file must
    /// show.
    virtual std::vector<HostXMLElement> generateAuxiliaryFileRequirementXMLNodes() const;
    /// The `entry` element of an entry. A subclass adds what its entries have more.
    virtual HostXMLElement xmlElement(const SpecificationEntry &entry) const;

    /// Whether every requirement has its file.
    ///
    /// True for a map that asks for none.
    virtual bool areFileRequirementsSatisfied() const;
    /// Binds a file to the first open requirement that takes it; false if none does. Throws what
    /// binding throws.
    ///
    /// SpecificationManager::registerAuxiliaryFile and bindAuxiliaryFile call it. A requirement
    /// that has its file is passed over, so a second file is claimed by nothing.
    virtual bool claimAuxiliaryFile(const QUrl &url);
    /// Whether claimAuxiliaryFile would find a requirement for the file. Nothing is bound by
    /// asking. May have to open the file.
    virtual bool isAuxiliaryFileCompatible(const QUrl &url);
    /// Whether the file is what the requirement asks for. This class knows no files.
    ///
    /// A subclass looks into the file, which comes from a user and may hold anything:
    ///
    /// \snippet text-specification/TextSpecification.cpp files
    virtual bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement);
    /// Does what binding takes, opening the file for example; true if the requirement is met. This
    /// class binds nothing. What it throws reaches whoever imports the file.
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
    ///
    /// A subclass makes one of its own, at best a SpecDetailViewController.
    virtual ViewControllerPtr detailViewController(const std::optional<QString> &label = {});

    /// For diagnostics.
    QString debugDescription() const;

protected:
    /// The second step of making: keeps the locations and reads the metadata of the map, if there
    /// is one. An override calls this one.
    virtual void initialize(const std::optional<QUrl> &map, const std::optional<QUrl> &dtd,
                            const AuxiliaryFileRequirements &requirements);

    /// Asks for one more file, as a map would. Maps that are read later add none, since there is
    /// one.
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
