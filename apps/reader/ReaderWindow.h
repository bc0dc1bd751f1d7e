// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMainWindow>
#include <QUrl>

#include <memory>
#include <vector>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/platform/NotificationCenter.h>

class QListView;
class QSplitter;

namespace Tavrin
{
class AuxiliaryFileImport;
}

namespace Tavrin::Reader
{

class CitationWindow;
class ControllerPane;
class EntryPalette;
class LookupField;
class RecentPlaces;
class ReferenceAudit;

/// The reader's window: a field to look things up with, the summary of what was found below it,
/// the places looked at before, and beside them the document.
class ReaderWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Sets the manager's display blocks, so there is one window. Files are imported into the
    /// shared manager, so that is the one to give.
    explicit ReaderWindow(SpecificationManager &manager, QWidget *parent = nullptr);
    ~ReaderWindow() override;

    /// Registers the maps of a directory. What is wrong with one is said over the window; those
    /// before it stay. Remembered for the next run.
    void openMaps(const QStringList &directories);
    /// The directories that were open in the last run.
    static QStringList rememberedMaps();
    /// Offers PDFs to the maps that are opened from now on, before what was imported.
    void offerFiles(const QStringList &paths);
    /// Binds PDFs where they lie, unless a map has taken them already.
    void bindFiles(const QStringList &paths);
    /// Imports PDFs, with a sheet over the window meanwhile.
    void importFiles(const std::vector<QUrl> &files);

    /// Shows what a text refers to, or says that there is nothing.
    void lookUp(const QString &text);
    void showEntry(const std::shared_ptr<SpecificationEntry> &entry);

    /// Opens a form in which to cite entries, with the document of a file if there is one.
    CitationWindow *openCitations(const QString &path = {});
    /// Shows what references cover of the specification that most of them lead into: in a table, or
    /// as marks in the document.
    void audit(const ReferenceCoverage &references);
    void showCoverage(const ReferenceCoverage &references);
    /// The same table for the references of a file, one a line.
    void auditFile(const QString &path);

    LookupField &lookupField() const { return *m_field; }
    ControllerPane &summaryPane() const { return *m_summary; }
    ControllerPane &detailPane() const { return *m_detail; }
    EntryPalette &entryPalette() const { return *m_palette; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *makeSidePane();
    void makeMenus();
    void makeFileMenu();
    void makeEditMenu();
    void makeGoMenu();
    void makeViewMenu();
    void chooseMaps();
    void chooseFiles();
    void chooseCitations();
    void chooseReferences();
    /// False if no reference leads anywhere, which is told.
    bool requireSpecification(const ReferenceAudit &audit);
    void complain(const QString &message, const std::exception &error);

    void displayDetail(const ViewControllerPtr &controller);
    void displayBrowser(const ViewControllerPtr &controller);
    void showSummary(const std::shared_ptr<SpecificationEntry> &entry);
    void entryChosenInDocument(const std::shared_ptr<SpecificationEntry> &entry);
    void showSource(const Specification *specification);
    void filesChanged();
    /// References mean the document that is on show, or else one that can be.
    void preferSpecification();
    void refreshPlaceholders();
    void restoreState();

    SpecificationManager &m_manager;
    EntryFinder m_finder;
    LookupField *m_field;
    ControllerPane *m_summary;
    ControllerPane *m_detail;
    QListView *m_recentView;
    RecentPlaces *m_recent;
    EntryPalette *m_palette;
    QSplitter *m_splitter;
    QSplitter *m_sideSplitter;
    AuxiliaryFileImport *m_import;
    QWidget *m_dropTarget;
    QStringList m_directories;
    std::shared_ptr<SpecDetailViewControllerDelegate> m_listener;
    std::weak_ptr<SpecificationEntry> m_shownEntry;
    NotificationCenter::TokenPtr m_filesObservation;
};

} // namespace Tavrin::Reader
