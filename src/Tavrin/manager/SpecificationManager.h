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
class TAVRIN_CORE_EXPORT SpecificationManager
{
public:
    using SpecificationPtr = std::shared_ptr<Specification>;
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    using SpecificationPredicate = std::function<bool(const Specification &)>;
    using EntryPredicate = std::function<bool(const SpecificationEntry &)>;
    using Comparator = SpecificationComparator::Comparator;
    /// Puts a view on the screen.
    using DisplayBlock = std::function<void(const ViewControllerPtr &)>;

    /// A directory of maps that could not be listed.
    class TAVRIN_CORE_EXPORT DirectoryError : public std::runtime_error
    {
    public:
        explicit DirectoryError(const QString &directory);
        QString directory;
    };

    /// Why no specification took a file.
    class TAVRIN_CORE_EXPORT SetupError : public std::runtime_error
    {
    public:
        enum class Kind {
            /// No registered specification has an open requirement for it.
            UnassignedAuxiliaryFile,
            /// It is missing or may not be read.
            UnreadableFile,
            NotAPDF,
            /// It is a PDF, too broken to repair.
            DamagedFile,
            /// It is encrypted, and opens with a password alone.
            PasswordNeeded,
        };

        explicit SetupError(const QUrl &url);
        SetupError(const QUrl &url, const HostPDFError &reason);

        Kind kind = Kind::UnassignedAuxiliaryFile;
        QUrl url;
        /// For the user, in the user's language.
        QString errorDescription;
        QString failureReason;
        QString recoverySuggestion;
    };

    SpecificationManager();
    ~SpecificationManager();
    SpecificationManager(const SpecificationManager &) = delete;
    SpecificationManager &operator=(const SpecificationManager &) = delete;

    /// Made on first use; lives as long as the process.
    static SpecificationManager &shared();

    /// Expires when the manager ends: ManagerPointer asks it.
    std::weak_ptr<const void> lifetime() const { return m_lifetime; }

    /// In the order of the comparators if there are any, else in that of registration.
    const std::vector<SpecificationPtr> &specifications() const { return m_specifications; }
    /// Replaces the list, puts it in order and selects the primary. Offers no files.
    void setSpecifications(std::vector<SpecificationPtr> specifications);

    /// Adds a specification, puts the list in order, selects the primary, and offers the
    /// specification the stored files. One that is registered twice is held twice.
    void registerSpecification(const SpecificationPtr &specification);
    /// Makes the right kind of specification for a map and registers it. If that fails nothing
    /// is registered and the error of the reader passes through.
    void registerSpecification(const QUrl &specMap, const std::optional<QUrl> &dtd);

    /// Registers every map of a directory: each file whose extension is exactly "xml", with the
    /// file of the same name and the extension "dtd" as its DTD if that is there too. In order of
    /// name. Then imports the given files, as registerAuxiliaryFile does. Throws DirectoryError, or
    /// what the first faulty map or file threw; what came before it stays.
    void loadSpecInformation(const QUrl &directory, const std::vector<QUrl> &auxiliaryFiles = {});

    /// The directory of the stored files, made if need be: userDataDirectory(), then
    /// libraryIdentifier() and hostIdentifier(). Asked anew each time; absent if there is no place
    /// for it or it can't be made.
    static std::optional<QString> supportDirectory();

    /// The stored files, in order of name, then of import. The first reading lists the store, takes
    /// away what a crash left in it, and posts the notification; it makes no directory.
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
    QUrl registerAuxiliaryFile(const QUrl &url);
    /// One after the other; the first that fails ends it, and those before stay.
    void registerAuxiliaryFiles(const std::vector<QUrl> &urls);

    /// Takes a file off the list and, if it is in the store, off the disk. The specification that
    /// it was bound to is replaced by a fresh object with no file bound; whoever holds the old one
    /// learns by the notification. A file that is not in the list is only logged.
    void unregisterAuxiliaryFile(const QUrl &url);

    /// Offers the stored files that are bound to nothing to a specification, in the order of the
    /// list, until it claims one. Part of registering it.
    void assignExistingAuxiliaryFiles(Specification &specification);

    /// Binds a file where it lies, for this run alone, to the first specification in list order
    /// that recognises it, and returns that; the store stays out of it and nothing is posted.
    /// Throws SetupError if none does, and passes on what recognising and binding throw.
    SpecificationPtr bindAuxiliaryFile(const QUrl &url);

    /// The specification that a file is bound to, or null.
    SpecificationPtr specificationBoundTo(const QUrl &file) const;

    /// Null while nothing is registered, or if the predicate finds none.
    const SpecificationPtr &primarySpecification() const { return m_primarySpecification; }
    /// Lasts until the list, the comparators or the predicate change.
    void setPrimarySpecification(const SpecificationPtr &specification);

    const SpecificationPredicate &primarySpecificationPredicate() const;
    /// Selects the first specification that satisfies the predicate, at once and from now on; an
    /// empty function means the first of the list.
    void setPrimarySpecificationPredicate(SpecificationPredicate predicate);

    /// Each decides where all before it call two specifications the same.
    const std::vector<Comparator> &specComparators() const { return m_specComparators; }
    /// Sorts the list at once; an empty list of comparators leaves the order as it is.
    void setSpecComparators(std::vector<Comparator> comparators);
    /// The same comparators as objects, for hosts that can only hold those.
    std::vector<std::shared_ptr<SpecificationComparator>> bridgedSpecComparators() const;
    void setBridgedSpecComparators(
        const std::vector<std::shared_ptr<SpecificationComparator>> &comparators);

    /// The first in list order for which the predicate holds, or null.
    SpecificationPtr specificationWhere(const SpecificationPredicate &predicate) const;

    /// The entry for a label or spec URL in the first specification that has it. May load the
    /// tables of the specifications it asks, one after the other, until there is a hit.
    EntryPtr entry(const QString &label,
                   const SpecificationPredicate &inSpecsWhere = acceptAll) const;

    /// The first entry of the tables in memory for which the predicate holds. Loads nothing.
    EntryPtr entryWhere(const EntryPredicate &predicate) const;

    static bool acceptAll(const Specification &) { return true; }

    /// Who makes the views of this manager and of its specifications: the installed factory, unless
    /// another is set. Null without windows.
    ViewControllerFactory *viewControllerFactory() const;
    /// Null for the installed one.
    void setViewControllerFactory(std::shared_ptr<ViewControllerFactory> factory);

    /// Shows detail views, and the prompts in their place. Empty at first: then there are none.
    const DisplayBlock &detailViewControllerDisplayBlock() const { return m_detailDisplayBlock; }
    void setDetailViewControllerDisplayBlock(DisplayBlock block);
    bool canDisplayDetailViewController() const { return bool(m_detailDisplayBlock); }
    /// Shows the table of imported files. Empty at first: then prompts offer no import.
    const DisplayBlock &auxiliaryFileBrowserDisplayBlock() const { return m_browserDisplayBlock; }
    void setAuxiliaryFileBrowserDisplayBlock(DisplayBlock block);
    bool canDisplayAuxiliaryFileBrowser() const { return bool(m_browserDisplayBlock); }
    /// The instruction above the table of imported files, in the user's language. Absent at first:
    /// then it has its own.
    const std::optional<QString> &auxiliaryFileBrowserHelpText() const { return m_browserHelpText; }
    void setAuxiliaryFileBrowserHelpText(const std::optional<QString> &text);

    /// The detail view that was displayed last; null if that was a prompt, or is gone. Not kept
    /// alive.
    ViewControllerPtr currentDetailViewController() const { return m_currentDetail.lock(); }

    /// A summary of the entry for a label or spec URL, from the first specification that has it and
    /// its files. Where none has: an empty summary if anything is imported, else a prompt to
    /// import. Never null where there are windows.
    ViewControllerPtr summaryLookup(const QString &label,
                                    const SpecificationPredicate &inSpecsWhere = acceptAll);
    /// A detail view of the entry of that label, from the first specification that gives one, which
    /// need not be the entry's own; else a prompt to import. Displays nothing.
    ViewControllerPtr detailLookup(const EntryPtr &entry);
    /// Displays the entry for a label or spec URL, else a prompt to import.
    void showDetailViewController(const QString &label,
                                  const SpecificationPredicate &inSpecsWhere = acceptAll);
    /// Displays a specification, with no entry current, else a prompt to import.
    void showDetailViewController(const SpecificationPtr &specification);
    /// Displays a specification with the places marked that a body of work cites. Without a detail
    /// view nothing is displayed.
    void showSpecCoverage(const ReferenceCoverage &coverage, const SpecificationPtr &specification);

    /// A message that a document is missing, with a button that shows the table of imported files
    /// if that can be displayed.
    ViewControllerPtr makeNoSpecsController();

    /// The table of imported files, made anew.
    ViewControllerPtr auxiliaryFileBrowser();
    /// Displays one, if there is a block for it.
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
