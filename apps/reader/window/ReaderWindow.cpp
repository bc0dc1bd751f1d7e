// SPDX-License-Identifier: Apache-2.0
#include <reader/window/ReaderWindow.h>

#include <QCloseEvent>
#include <QSplitter>

#include <algorithm>
#include <functional>

#include <Tavrin/platform/StringLocalizer.h>
#include <reader/citing/AuditPresenter.h>
#include <reader/citing/CitationWindow.h>
#include <reader/files/FileChooser.h>
#include <reader/files/FileDrops.h>
#include <reader/files/ReaderLibrary.h>
#include <reader/lookup/EntryPalette.h>
#include <reader/lookup/EntryPresenter.h>
#include <reader/lookup/LookupField.h>
#include <reader/panes/ControllerPane.h>
#include <reader/panes/ControllerWindow.h>
#include <reader/window/DocumentState.h>
#include <reader/window/EmptyStates.h>
#include <reader/window/ReaderMenus.h>
#include <reader/window/SidePane.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize leastSize(480, 360);

} // namespace

ReaderWindow::ReaderWindow(SpecificationManager &manager, QWidget *parent)
    : QMainWindow(parent),
      m_manager(manager),
      m_finder(manager),
      m_side(new SidePane(m_finder)),
      m_detail(new ControllerPane({})),
      m_palette(new EntryPalette(m_finder, *this)),
      m_splitter(new QSplitter),
      m_library(new ReaderLibrary(manager, *this)),
      m_presenter(new EntryPresenter(manager, m_finder,
                                     {m_side->summary(), *m_detail, m_side->recent()}, *this)),
      m_audits(new AuditPresenter(manager, m_finder, *m_detail, *this)),
      m_partFocus(*m_side, *m_detail),
      m_state(*this, *m_splitter, m_side->splitter())
{
    layOut();
    new ReaderMenus(*this);
    new DocumentState(*m_detail);
    setDisplayBlocks();
    connectParts();
    showTitle(nullptr);
    updateEmptyStates();
    m_state.restore();
}

ReaderWindow::~ReaderWindow()
{
    m_manager.setDetailViewControllerDisplayBlock({});
    m_manager.setAuxiliaryFileBrowserDisplayBlock({});
}

void ReaderWindow::layOut()
{
    setMinimumSize(leastSize);
    m_splitter->addWidget(m_side);
    m_splitter->addWidget(m_detail);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
}

void ReaderWindow::setDisplayBlocks()
{
    m_manager.setDetailViewControllerDisplayBlock(
        [this](const ViewControllerPtr &controller) { m_presenter->displayDetail(controller); });
    m_manager.setAuxiliaryFileBrowserDisplayBlock([this](const ViewControllerPtr &controller) {
        ControllerWindow::show(controller, u"Specifications"_s, *this);
    });
}

void ReaderWindow::connectParts()
{
    connect(&lookupField(), &LookupField::entryChosen, m_presenter, &EntryPresenter::showEntry);
    connect(&lookupField(), &LookupField::referenceEntered, m_presenter, &EntryPresenter::lookUp);
    connect(m_side, &SidePane::placeChosen, m_presenter, &EntryPresenter::lookUp);
    connect(m_palette, &EntryPalette::entryChosen, m_presenter, &EntryPresenter::showEntry);
    connect(m_presenter, &EntryPresenter::specificationShown, this, &ReaderWindow::showTitle);
    connect(m_library, &ReaderLibrary::changed, this, &ReaderWindow::libraryChanged);
    const auto *drops = new FileDrops(*this);
    connect(drops, &FileDrops::dropped, m_library, &ReaderLibrary::importFiles);
}

LookupField &ReaderWindow::lookupField() const
{
    return m_side->field();
}

ControllerPane &ReaderWindow::summaryPane() const
{
    return m_side->summary();
}

void ReaderWindow::openMaps(const QStringList &directories)
{
    m_library->openMaps(directories);
}

QStringList ReaderWindow::rememberedMaps()
{
    return ReaderLibrary::rememberedMaps();
}

void ReaderWindow::offerFiles(const QStringList &paths)
{
    m_library->offerFiles(paths);
}

void ReaderWindow::bindFiles(const QStringList &paths)
{
    m_library->bindFiles(paths);
}

void ReaderWindow::importFiles(const std::vector<QUrl> &files)
{
    m_library->importFiles(files);
}

void ReaderWindow::lookUp(const QString &text)
{
    m_presenter->lookUp(text);
}

void ReaderWindow::audit(const ReferenceCoverage &references)
{
    m_audits->showTable(references);
}

void ReaderWindow::showCoverage(const ReferenceCoverage &references)
{
    m_audits->showMarks(references);
}

void ReaderWindow::auditFile(const QString &path)
{
    m_audits->showFile(path);
}

CitationWindow *ReaderWindow::openCitations(const QString &path)
{
    auto *citations = new CitationWindow(m_manager, this);
    citations->setWindowFlag(Qt::Window);
    connect(citations, &CitationWindow::auditRequested, m_audits, &AuditPresenter::showTable);
    connect(citations, &CitationWindow::coverageRequested, m_audits, &AuditPresenter::showMarks);
    citations->show();
    if (!path.isEmpty())
        citations->open(path);
    return citations;
}

void ReaderWindow::chooseCitations()
{
    CitationWindow::chooser().open(
        *this, [this](const QStringList &paths) { openCitations(paths.front()); });
}

void ReaderWindow::showTitle(const Specification *specification)
{
    setWindowTitle(specification ? u"%1 – Tavrin"_s.arg(specification->title())
                                 : QStringLiteral("Tavrin"));
}

void ReaderWindow::libraryChanged()
{
    m_presenter->libraryChanged();
    updateEmptyStates();
}

void ReaderWindow::updateEmptyStates()
{
    summaryPane().setPlaceholder(EmptyStates::ofSummary());
    m_detail->setPlaceholder(EmptyStates::ofDocument(m_manager));
}

void ReaderWindow::closeEvent(QCloseEvent *event)
{
    // What would be lost is asked about while there is a window to stay in.
    const auto forms = findChildren<CitationWindow *>(Qt::FindDirectChildrenOnly);
    const auto unsaved =
        std::find_if(forms.begin(), forms.end(), std::mem_fn(&CitationWindow::isUnsaved));
    if (unsaved != forms.end()) {
        event->ignore();
        (*unsaved)->closeWhenSaved([this] { close(); });
        return;
    }
    m_state.store();
    QMainWindow::closeEvent(event);
}

} // namespace Tavrin::Reader
