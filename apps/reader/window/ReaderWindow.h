// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMainWindow>
#include <QUrl>

#include <memory>
#include <vector>

#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <reader/window/PartFocus.h>
#include <reader/window/WindowState.h>

class QSplitter;

namespace Tavrin::Reader
{

class AuditPresenter;
class CitationWindow;
class ControllerPane;
class EntryPalette;
class EntryPresenter;
class LookupField;
class ReaderLibrary;
class SidePane;

/// The reader's window: what to look things up with on the left, and beside it the document. It
/// puts the parts together; what they do is theirs.
class ReaderWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Sets the manager's display blocks, so there is one window.
    explicit ReaderWindow(SpecificationManager &manager, QWidget *parent = nullptr);
    ~ReaderWindow() override;

    // As ReaderLibrary, EntryPresenter and AuditPresenter have them.
    void openMaps(const QStringList &directories);
    static QStringList rememberedMaps();
    void offerFiles(const QStringList &paths);
    void bindFiles(const QStringList &paths);
    void importFiles(const std::vector<QUrl> &files);
    void lookUp(const QString &text);
    void audit(const ReferenceCoverage &references);
    void showCoverage(const ReferenceCoverage &references);
    void auditFile(const QString &path);

    /// Opens a form in which to cite entries, with the document of a file if there is one.
    CitationWindow *openCitations(const QString &path = {});
    /// One with the document that the user chooses.
    void chooseCitations();

    SpecificationManager &manager() const { return m_manager; }
    SidePane &sidePane() const { return *m_side; }
    LookupField &lookupField() const;
    ControllerPane &summaryPane() const;
    ControllerPane &detailPane() const { return *m_detail; }
    EntryPalette &entryPalette() const { return *m_palette; }
    ReaderLibrary &library() const { return *m_library; }
    EntryPresenter &presenter() const { return *m_presenter; }
    AuditPresenter &audits() const { return *m_audits; }
    const PartFocus &partFocus() const { return m_partFocus; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void layOut();
    void setDisplayBlocks();
    void connectParts();
    void showTitle(const Specification *specification);
    void libraryChanged();
    void updateEmptyStates();

    SpecificationManager &m_manager;
    EntryFinder m_finder;
    SidePane *m_side;
    ControllerPane *m_detail;
    EntryPalette *m_palette;
    QSplitter *m_splitter;
    ReaderLibrary *m_library;
    EntryPresenter *m_presenter;
    AuditPresenter *m_audits;
    PartFocus m_partFocus;
    WindowState m_state;
};

} // namespace Tavrin::Reader
