// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/model/Specification.h>
#include <Tavrin/model/SpecificationComparator.h>
#include <Tavrin/model/ViewControllerPtr.h>

namespace Tavrin
{

class HostPDFError;
class ManagedRegistry;
class ViewControllerFactory;

/// The one registry of the specifications that a process has loaded.
///
/// The host registers maps at start-up, says which specification is primary, and asks for entries
/// by label. Look-ups ask the primary specification first, then the others in list order.
/// Everything runs synchronously on the caller's thread, and no two threads may use a manager at
/// once. A specification learns from the manager that registered it last of the others beside it,
/// as long as both are there.
///
/// Files that the user imports are copied into a directory of the host's own, the store, and bound
/// to the specification that recognises them. Nothing on disk says which: when a specification is
/// registered the next time, the stored files are offered to it. What changes the list of stored
/// files posts TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification on the caller's
/// thread, with the manager as object. Trouble with the store is logged, and leaves files usable
/// where they lie.
///
/// What a label leads to can be seen: as a summary, for a popover, or as a detail view, for a
/// window. The manager decides which specification answers, and what to say when none does; the
/// host decides where a view goes, by the display blocks that it sets. A look-up that fails is no
/// error: it has a view that says so, or a line in the log, as its result. Views are made by
/// Tavrin::Widgets, on the main thread. In a process without it nothing can be shown: what returns
/// a view logs that and returns null, and what displays one does nothing more than log.
///
/// A host begins with a directory of maps, and perhaps a file:
///
/// \snippet minimal/main.cpp load
///
/// \see \ref host-guide for the whole of it, EntryFinder for what people type by hand.
class TAVRIN_CORE_EXPORT SpecificationManager
{
public:
    using SpecificationPtr = std::shared_ptr<Specification>;
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    /// Narrows a look-up: only specifications for which it holds are asked.
    using SpecificationPredicate = std::function<bool(const Specification &)>;
    using EntryPredicate = std::function<bool(const SpecificationEntry &)>;
    using Comparator = SpecificationComparator::Comparator;
    /// Puts a view on the screen.
    ///
    /// Called on the main thread with a view that is not null. The block keeps the controller as
    /// long as the view is to be seen; the manager itself remembers the latest detail view weakly
    /// and no other.
    using DisplayBlock = std::function<void(const ViewControllerPtr &)>;

    /// A directory of maps that could not be listed.
    ///
    /// what() names the directory, in UTF-8.
    class TAVRIN_CORE_EXPORT DirectoryError : public std::runtime_error
    {
    public:
        /// `directory` is the path as it was given, for the message.
        explicit DirectoryError(const QString &directory);
        QString directory;
    };

    /// Why no specification took a file.
    ///
    /// what() names the file, in English; what is shown to users stands in the texts below.
    class TAVRIN_CORE_EXPORT SetupError : public std::runtime_error
    {
    public:
        /// By which a host can choose its own words or its next step.
        enum class Kind {
            /// No registered specification has an open requirement for it: either it is of no
            /// document that the maps describe, or the specification that it belongs to has a file
            /// already. Unregister that first.
            UnassignedAuxiliaryFile,
            /// It is missing or may not be read.
            UnreadableFile,
            NotAPDF,
            /// It is a PDF, too broken to repair.
            DamagedFile,
            /// It is encrypted, and opens with a password alone.
            PasswordNeeded,
        };

        /// Makes the texts for that file, in the language of this moment.
        explicit SetupError(const QUrl &url);
        /// The same for a file that could not be read: the reason gives the kind.
        SetupError(const QUrl &url, const HostPDFError &reason);

        Kind kind = Kind::UnassignedAuxiliaryFile;
        QUrl url;
        /// For the user, in the user's language.
        QString errorDescription;
        /// The same as the description.
        QString failureReason;
        QString recoverySuggestion;
    };

    /// An empty manager of its own: for tests, and for programs that keep sets of maps apart.
    SpecificationManager();
    ~SpecificationManager();
    SpecificationManager(const SpecificationManager &) = delete;
    SpecificationManager &operator=(const SpecificationManager &) = delete;

    /// Made on first use; lives as long as the process.
    static SpecificationManager &shared();

    /// Expires when the manager ends: ManagerPointer asks it.
    std::weak_ptr<const void> lifetime() const { return m_lifetime; }

    /// In the order of the comparators if there are any, else in that of registration.
    ///
    /// Valid until the list changes, which every registration does, and unregisterAuxiliaryFile()
    /// too.
    const std::vector<SpecificationPtr> &specifications() const { return m_specifications; }
    /// Replaces the list, puts it in order and selects the primary. Offers no files.
    ///
    /// To take one off the list, set the list without it.
    void setSpecifications(std::vector<SpecificationPtr> specifications);

    /// Adds a specification, puts the list in order, selects the primary, and offers the
    /// specification the stored files. One that is registered twice is held twice.
    ///
    /// Offering a file that the specification recognises binds it, so that this may take as long as
    /// opening a PDF. A stored file that fails to bind is passed over without a word. The table of
    /// whichever specification is primary is loaded; a failure of that is logged.
    void registerSpecification(const SpecificationPtr &specification);
    /// Makes the right kind of specification for a map and registers it. If that fails nothing
    /// is registered and the error of the reader passes through.
    ///
    /// `dtd` serves a map that neither names nor holds one. The kind is chosen by
    /// Specification::registerSpecType.
    ///
    /// Throws XMLError for a map that is no spec map, HostXMLError for one that can't be read or
    /// isn't valid.
    void registerSpecification(const QUrl &specMap, const std::optional<QUrl> &dtd);

    /// Registers every map of a directory: each file whose extension is exactly "xml", with the
    /// file of the same name and the extension "dtd" as its DTD if that is there too. In order of
    /// name. Then imports the given files, as registerAuxiliaryFile does. Throws DirectoryError, or
    /// what the first faulty map or file threw; what came before it stays.
    ///
    /// `directory` is a local one; directories below it are not looked into. Metadata of every map
    /// is read, and the table of the primary specification; the other tables follow when they are
    /// first asked.
    ///
    /// To go on past a faulty map, register the maps one by one and catch each error.
    void loadSpecInformation(const QUrl &directory, const std::vector<QUrl> &auxiliaryFiles = {});

    /// The directory of the stored files, made if need be: userDataDirectory(), then
    /// libraryIdentifier() and hostIdentifier(). Asked anew each time; absent if there is no place
    /// for it or it can't be made.
    ///
    /// Below ~/.local/share, "tavrin/ORGANISATION.APPLICATION". Give the application its name
    /// before it is asked for: see hostIdentifier().
    static std::optional<QString> supportDirectory();

    /// The stored files, in order of name, then of import. The first reading lists the store, takes
    /// away what a crash left in it, and posts the notification; it makes no directory.
    ///
    /// A copy is named after the file that was imported. Valid until a file comes or goes.
    const std::vector<QUrl> &auxiliaryFiles();
    /// Replaces the list, leaving the disk as it is and posting nothing. Files need not be in the
    /// store: with a list of its own a host offers others to what it registers next.
    void setAuxiliaryFiles(std::vector<QUrl> files);

    /// Imports a file: copies it into the store and binds the copy to the first specification in
    /// list order that recognises it. Returns the copy, or the file itself, bound where it lies, if
    /// it can't be stored. Throws SetupError if no specification recognises it, and passes on what
    /// recognising and binding throw; then nothing of the file is left in the store.
    ///
    /// A file that is recognised and not claimed after all stays in the store unbound. Entries that
    /// are in memory stay as they are. Copying takes the time of the disk; the file is whole and
    /// flushed when this returns, and never seen half made.
    ///
    /// `url` names a local file, which stays as it is and where it is.
    QUrl registerAuxiliaryFile(const QUrl &url);
    /// One after the other; the first that fails ends it, and those before stay.
    ///
    /// Throws what registerAuxiliaryFile() throws.
    void registerAuxiliaryFiles(const std::vector<QUrl> &urls);

    /// Takes a file off the list and, if it is in the store, off the disk. The specification that
    /// it was bound to is replaced by a fresh object with no file bound; whoever holds the old one
    /// learns by the notification. A file that is not in the list is only logged.
    ///
    /// The notification is posted after the replacement is in the list. Documents that are open
    /// somewhere stay open as long as somebody holds them. If the map itself can't be read any
    /// more, that is logged, and the old object stays, with the file bound; so does one that was
    /// made without a map.
    void unregisterAuxiliaryFile(const QUrl &url);

    /// Offers the stored files that are bound to nothing to a specification, in the order of the
    /// list, until it claims one. Part of registering it.
    ///
    /// A specification without requirements is left alone. A file that can't be bound counts as one
    /// that isn't recognised; nothing is thrown.
    void assignExistingAuxiliaryFiles(Specification &specification);

    /// Binds a file where it lies, for this run alone, to the first specification in list order
    /// that recognises it, and returns that; the store stays out of it and nothing is posted.
    /// Throws SetupError if none does, and passes on what recognising and binding throw.
    ///
    /// The way for a file that is named on a command line, or that a host keeps in a place of its
    /// own:
    ///
    /// \snippet minimal/main.cpp bind
    SpecificationPtr bindAuxiliaryFile(const QUrl &url);

    /// The specification that a file is bound to, or null.
    SpecificationPtr specificationBoundTo(const QUrl &file) const;

    /// Null while nothing is registered, or if the predicate finds none.
    ///
    /// The one that is asked first. Its table is loaded as soon as it is chosen by the list or a
    /// predicate.
    const SpecificationPtr &primarySpecification() const { return m_primarySpecification; }
    /// Lasts until the list, the comparators or the predicate change.
    ///
    /// For a choice that lasts, set a predicate. The specification need not be in the list;
    /// look-ups ask it all the same. Its table is not loaded by this.
    void setPrimarySpecification(const SpecificationPtr &specification);

    /// What chooses the primary specification; an empty function at first.
    const SpecificationPredicate &primarySpecificationPredicate() const;
    /// Selects the first specification that satisfies the predicate, at once and from now on; an
    /// empty function means the first of the list.
    ///
    /// If the predicate holds for none, there is no primary specification. A predicate that asks
    /// for identifier and revision keeps to one edition whatever else is registered.
    void setPrimarySpecificationPredicate(SpecificationPredicate predicate);

    /// Each decides where all before it call two specifications the same.
    ///
    /// Empty at first.
    const std::vector<Comparator> &specComparators() const { return m_specComparators; }
    /// Sorts the list at once; an empty list of comparators leaves the order as it is.
    ///
    /// Specifications that all comparators call the same stay in the order they had. Selects the
    /// primary specification anew.
    void setSpecComparators(std::vector<Comparator> comparators);
    /// The same comparators as objects, for hosts that can only hold those.
    ///
    /// Made anew at each call.
    std::vector<std::shared_ptr<SpecificationComparator>> bridgedSpecComparators() const;
    /// As setSpecComparators(), by objects, none of which may be null.
    void setBridgedSpecComparators(
        const std::vector<std::shared_ptr<SpecificationComparator>> &comparators);

    /// The first in list order for which the predicate holds, or null.
    SpecificationPtr specificationWhere(const SpecificationPredicate &predicate) const;

    /// The entry for a label or spec URL in the first specification that has it. May load the
    /// tables of the specifications it asks, one after the other, until there is a hit.
    ///
    /// Null if no specification that the predicate lets through has the label. The table of one
    /// whose file is missing is not loaded for this: unless it is in memory already, as that of the
    /// primary specification is, its entries are not found. A table that fails to load is passed
    /// over without a word. What people write by hand ("§ 4.2.1") is no label:
    /// EntryFinder::resolve() reads it.
    ///
    /// A spec URL with a range of lines gives an entry for those lines. One whose range ends before
    /// it begins is a fault of the program and ends the process, so ask SpecURL::hasReversedLines()
    /// first of texts that come from outside.
    EntryPtr entry(const QString &label,
                   const SpecificationPredicate &inSpecsWhere = acceptAll) const;

    /// The first entry of the tables in memory for which the predicate holds. Loads nothing.
    ///
    /// The primary specification's entries come first, each table in its order. Null if there is
    /// none. Takes a pass over all entries.
    EntryPtr entryWhere(const EntryPredicate &predicate) const;

    /// The predicate that lets every specification through.
    static bool acceptAll(const Specification &) { return true; }

    /// Who makes the views of this manager and of its specifications: the installed factory, unless
    /// another is set. Null without windows.
    ViewControllerFactory *viewControllerFactory() const;
    /// Null for the installed one.
    void setViewControllerFactory(std::shared_ptr<ViewControllerFactory> factory);

    /// Shows detail views, and the prompts in their place. Empty at first: then there are none.
    const DisplayBlock &detailViewControllerDisplayBlock() const { return m_detailDisplayBlock; }
    /// Set it once, before the first view is asked for. While it is empty, what would display a
    /// detail view logs that and does nothing else.
    ///
    /// \snippet minimal/main.cpp display
    void setDetailViewControllerDisplayBlock(DisplayBlock block);
    bool canDisplayDetailViewController() const { return bool(m_detailDisplayBlock); }
    /// Shows the table of imported files. Empty at first: then prompts offer no import.
    const DisplayBlock &auxiliaryFileBrowserDisplayBlock() const { return m_browserDisplayBlock; }
    /// Set it before the first look-up, since a prompt decides when it is made whether it has a
    /// button.
    void setAuxiliaryFileBrowserDisplayBlock(DisplayBlock block);
    bool canDisplayAuxiliaryFileBrowser() const { return bool(m_browserDisplayBlock); }
    /// The instruction above the table of imported files, in the user's language. Absent at first:
    /// then it has its own.
    const std::optional<QString> &auxiliaryFileBrowserHelpText() const { return m_browserHelpText; }
    /// Counts for tables that are made from now on.
    void setAuxiliaryFileBrowserHelpText(const std::optional<QString> &text);

    /// The detail view that was displayed last; null if that was a prompt, or is gone. Not kept
    /// alive.
    ViewControllerPtr currentDetailViewController() const { return m_currentDetail.lock(); }

    /// A summary of the entry for a label or spec URL, from the first specification that has it and
    /// its files. Where none has: an empty summary if anything is imported, else a prompt to
    /// import. Never null where there are windows.
    ///
    /// Returns at once with what the map knows; the view fills in by itself when the pages have
    /// been read. Show it in a Popover, or in a place of the host's:
    ///
    /// \snippet minimal/main.cpp show
    ///
    /// A label that nobody has is logged. As with entry(), a URL from outside whose lines are
    /// reversed has to be kept away. The predicate does not count for the question whether anything
    /// is imported.
    ViewControllerPtr summaryLookup(const QString &label,
                                    const SpecificationPredicate &inSpecsWhere = acceptAll);
    /// A detail view of the entry of that label, from the first specification that gives one, which
    /// need not be the entry's own; else a prompt to import. Displays nothing.
    ///
    /// `entry` must not be null. Each call makes a view of its own; null without windows.
    ViewControllerPtr detailLookup(const EntryPtr &entry);
    /// Displays the entry for a label or spec URL, else a prompt to import.
    ///
    /// Calls the detail block with a SpecDetailViewController, or with the prompt. Asks the
    /// specifications in the order of look-ups, and one whose file is missing gives no view, so a
    /// label may be answered by another edition. Without a block, nothing happens beyond a line in
    /// the log. Which view it was, currentDetailViewController() tells.
    void showDetailViewController(const QString &label,
                                  const SpecificationPredicate &inSpecsWhere = acceptAll);
    /// Displays a specification, with no entry current, else a prompt to import.
    ///
    /// Null counts as a specification that has no view.
    void showDetailViewController(const SpecificationPtr &specification);
    /// Displays a specification with the places marked that a body of work cites. Without a detail
    /// view nothing is displayed.
    ///
    /// The reason is logged, and there is no prompt. Finding the places goes on in the background,
    /// behind a sheet with a bar.
    void showSpecCoverage(const ReferenceCoverage &coverage, const SpecificationPtr &specification);

    /// A message that a document is missing, with a button that shows the table of imported files
    /// if that can be displayed.
    ///
    /// The text says whether nothing at all is imported, or only this document isn't. Null without
    /// windows.
    ViewControllerPtr makeNoSpecsController();

    /// The table of imported files, made anew.
    ///
    /// Null without windows.
    ViewControllerPtr auxiliaryFileBrowser();
    /// Displays a table of imported files, made anew. Without a block for it nothing happens, not
    /// even a line in the log.
    void showAuxiliaryFileBrowser();

private:
    void adopt(Specification &specification);
    void release(Specification &specification);
    ViewControllerFactory *views() const;
    void updateOrderAndPrimary();
    void sortSpecifications();
    void updatePrimarySpecification();
    bool isOrderedBefore(const Specification &a, const Specification &b) const;
    std::vector<SpecificationPtr> lookupOrder() const;
    SpecificationPtr specificationFor(const QUrl &url) const;
    void rebuildSpecification(const QUrl &boundFile);
    void postAuxiliaryFilesChanged();
    bool isAnySpecificationSatisfied() const;
    ViewControllerPtr detailFor(const QString &label,
                                const SpecificationPredicate &inSpecsWhere) const;
    void displayDetail(const ViewControllerPtr &detail);
    void claim(const ViewControllerPtr &view);
    bool displayPrompt();

    std::vector<SpecificationPtr> m_specifications;
    SpecificationPtr m_primarySpecification;
    SpecificationPredicate m_primarySpecificationPredicate;
    std::vector<Comparator> m_specComparators;
    std::optional<std::vector<QUrl>> m_auxiliaryFiles;
    std::shared_ptr<ManagedRegistry> m_registry;
    std::shared_ptr<ViewControllerFactory> m_factory;
    DisplayBlock m_detailDisplayBlock;
    DisplayBlock m_browserDisplayBlock;
    std::optional<QString> m_browserHelpText;
    std::weak_ptr<ViewController> m_currentDetail;
    /// By it views that are still on show know that the manager is there.
    std::shared_ptr<const void> m_lifetime = std::make_shared<char>();
};

} // namespace Tavrin
