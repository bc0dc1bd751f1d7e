// SPDX-License-Identifier: Apache-2.0
#include "ReaderWindow.h"

#include <QCloseEvent>
#include <QCompleter>
#include <QFileDialog>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <iterator>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/interface/files/AuxiliaryFileImport.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CitationWindow.h"
#include "ControllerPane.h"
#include "ControllerWindow.h"
#include "EntryPalette.h"
#include "LookupField.h"
#include "RecentPlaces.h"
#include "ReferenceAudit.h"
#include "SuggestionModel.h"

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize firstSize(1240, 800);
constexpr QSize leastSize(480, 360);
constexpr int sideWidth = 330;
constexpr int padding = 8;

constexpr auto geometryKey = "Reader.Window"_L1;
constexpr auto splitterKey = "Reader.Splitter"_L1;
constexpr auto sideSplitterKey = "Reader.SideSplitter"_L1;
constexpr auto mapsKey = "Reader.Maps"_L1;

/// Hears of what is chosen in the document.
class Listener : public SpecDetailViewControllerDelegate
{
public:
    using Choice = std::function<void(const std::shared_ptr<SpecificationEntry> &)>;

    explicit Listener(Choice choice) : m_choice(std::move(choice)) {}
    void specDetailViewController(SpecDetailViewController &,
                                  const std::shared_ptr<SpecificationEntry> &selected) override
    {
        m_choice(selected);
    }

private:
    Choice m_choice;
};

bool isPDF(const QUrl &url)
{
    return url.isLocalFile() && url.path().endsWith(".pdf"_L1, Qt::CaseInsensitive);
}

std::vector<QUrl> pdfsOf(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    std::vector<QUrl> pdfs;
    std::copy_if(urls.begin(), urls.end(), std::back_inserter(pdfs), isPDF);
    return pdfs;
}

/// Asks for files or a directory over a window, and goes on with what is chosen.
void choose(QWidget &window, const QString &title, QFileDialog::FileMode mode,
            const QString &filter, const std::function<void(const QStringList &)> &then)
{
    auto *dialog = new QFileDialog(&window, title, {}, filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(mode);
    QObject::connect(dialog, &QFileDialog::filesSelected, &window, then);
    dialog->open();
}

QUrl fileUrl(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

bool isBound(const SpecificationManager &manager, const QUrl &file)
{
    return manager.specificationWhere([&file](const Specification &specification) {
        const auto &requirements = specification.auxiliaryFileRequirements();
        return std::any_of(requirements.begin(), requirements.end(),
                           [&](const auto &requirement) { return requirement->fileURL == file; });
    }) != nullptr;
}

} // namespace

ReaderWindow::ReaderWindow(SpecificationManager &manager, QWidget *parent)
    : QMainWindow(parent),
      m_manager(manager),
      m_finder(manager),
      m_field(new LookupField(m_finder)),
      m_summary(new ControllerPane({})),
      m_detail(new ControllerPane({})),
      m_recentView(new QListView),
      m_recent(new RecentPlaces(this)),
      m_palette(new EntryPalette(m_finder, *this)),
      m_splitter(new QSplitter),
      m_sideSplitter(new QSplitter(Qt::Vertical)),
      m_import(new AuxiliaryFileImport(this)),
      m_dropTarget(new QLabel(localized("Drop to import", "drop target"), this)),
      m_listener(
          std::make_shared<Listener>([this](const auto &entry) { entryChosenInDocument(entry); }))
{
    setWindowTitle(QStringLiteral("Tavrin"));
    setAcceptDrops(true);
    setMinimumSize(leastSize);
    m_splitter->addWidget(makeSidePane());
    m_splitter->addWidget(m_detail);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    auto *target = static_cast<QLabel *>(m_dropTarget);
    target->setAlignment(Qt::AlignCenter);
    target->setAutoFillBackground(true);
    target->setFrameStyle(QFrame::Box | QFrame::Plain);
    target->setForegroundRole(QPalette::Highlight);
    target->setLineWidth(3);
    QFont large = target->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    target->setFont(large);
    target->hide();
    makeMenus();

    m_manager.setDetailViewControllerDisplayBlock(
        [this](const ViewControllerPtr &controller) { displayDetail(controller); });
    m_manager.setAuxiliaryFileBrowserDisplayBlock(
        [this](const ViewControllerPtr &controller) { displayBrowser(controller); });
    m_filesObservation = NotificationCenter::shared().observe(
        TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, &m_manager,
        [this](const QString &, const void *) { filesChanged(); });
    connect(m_field, &LookupField::entryChosen, this, &ReaderWindow::showEntry);
    connect(m_field, &LookupField::referenceEntered, this, &ReaderWindow::lookUp);
    connect(m_palette, &EntryPalette::entryChosen, this, &ReaderWindow::showEntry);
    connect(m_import, &AuxiliaryFileImport::finished, this,
            [this](const auto &failures) { AuxiliaryFileImport::showFailures(this, failures); });
    refreshPlaceholders();
    restoreState();
}

ReaderWindow::~ReaderWindow()
{
    m_manager.setDetailViewControllerDisplayBlock({});
    m_manager.setAuxiliaryFileBrowserDisplayBlock({});
}

QWidget *ReaderWindow::makeSidePane()
{
    auto *recent = new QWidget;
    auto *recentLayout = new QVBoxLayout(recent);
    recentLayout->setContentsMargins({});
    auto *heading = new QLabel(localized("Recent places", "heading of a list"));
    heading->setForegroundRole(QPalette::PlaceholderText);
    heading->setBuddy(m_recentView);
    recentLayout->addWidget(heading);
    recentLayout->addWidget(m_recentView);
    m_recentView->setObjectName(u"recentPlaces"_s);
    m_recentView->setModel(m_recent);
    m_recentView->setUniformItemSizes(true);
    m_recentView->setTextElideMode(Qt::ElideRight);
    m_recentView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_recentView->setAccessibleName(heading->text());
    connect(m_recentView, &QListView::activated, this,
            [this](const QModelIndex &place) { lookUp(m_recent->specURL(place)); });
    connect(m_recentView, &QListView::clicked, m_recentView, &QListView::activated);

    m_sideSplitter->addWidget(m_summary);
    m_sideSplitter->addWidget(recent);
    m_sideSplitter->setStretchFactor(0, 3);
    m_sideSplitter->setStretchFactor(1, 1);
    m_sideSplitter->setChildrenCollapsible(false);
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(m_field);
    layout->addWidget(m_sideSplitter, 1);
    pane->setMinimumWidth(sideWidth * 2 / 3);
    return pane;
}

void ReaderWindow::makeMenus()
{
    makeFileMenu();
    makeEditMenu();
    makeGoMenu();
    makeViewMenu();
}

void ReaderWindow::makeFileMenu()
{
    QMenu *menu = menuBar()->addMenu(localized("&File", "menu"));
    menu->addAction(localized("Open &Maps…", "menu item"), QKeySequence::Open, this,
                    &ReaderWindow::chooseMaps);
    menu->addAction(localized("&Import PDF…", "menu item"), QKeySequence(u"Ctrl+I"_s), this,
                    &ReaderWindow::chooseFiles);
    menu->addAction(localized("&Specifications…", "menu item"), QKeySequence(u"Ctrl+Shift+I"_s),
                    this, [this] { m_manager.showAuxiliaryFileBrowser(); });
    menu->addSeparator();
    menu->addAction(localized("&New Citations", "menu item"), QKeySequence::New, this,
                    [this] { openCitations(); });
    menu->addAction(localized("Open &Citations…", "menu item"), this,
                    &ReaderWindow::chooseCitations);
    menu->addAction(localized("&Audit References…", "menu item"), this,
                    &ReaderWindow::chooseReferences);
    menu->addSeparator();
    menu->addAction(localized("&Quit", "menu item"), QKeySequence::Quit, this, &QWidget::close);
}

void ReaderWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(localized("&Edit", "menu"));
    menu->addAction(localized("&Copy Entry", "menu item"), QKeySequence(u"Ctrl+Shift+C"_s), this,
                    [this] {
                        if (const auto entry = m_shownEntry.lock())
                            EntryClipboard::copy(*entry);
                    });
    auto *copyPlace = new QAction(m_recentView);
    copyPlace->setShortcut(QKeySequence::Copy);
    copyPlace->setShortcutContext(Qt::WidgetShortcut);
    m_recentView->addAction(copyPlace);
    connect(copyPlace, &QAction::triggered, this, [this] {
        const auto found = m_finder.resolve(m_recent->specURL(m_recentView->currentIndex()));
        if (!found.front().entries.empty())
            EntryClipboard::copy(*found.front().entries.front());
    });
}

void ReaderWindow::makeGoMenu()
{
    QMenu *menu = menuBar()->addMenu(localized("&Go", "menu"));
    menu->addAction(localized("&Look Up", "menu item"), QKeySequence(u"Ctrl+L"_s), this, [this] {
        m_field->setFocus(Qt::ShortcutFocusReason);
        m_field->selectAll();
    });
    menu->addAction(localized("Go to &Entry…", "menu item"), QKeySequence(u"Ctrl+K"_s), this,
                    [this] { m_palette->open(); });
    menu->addSeparator();
    menu->addAction(localized("&Clear Recent Places", "menu item"), m_recent, &RecentPlaces::clear);
}

void ReaderWindow::makeViewMenu()
{
    QMenu *menu = menuBar()->addMenu(localized("&View", "menu"));
    QAction *side = menu->addAction(localized("&Look-up Pane", "menu item"));
    side->setShortcut(QKeySequence(u"F9"_s));
    side->setCheckable(true);
    side->setChecked(true);
    connect(side, &QAction::toggled, m_splitter->widget(0), &QWidget::setVisible);
}

void ReaderWindow::complain(const QString &message, const std::exception &error)
{
    Sheet::showMessage(*this, message, QString::fromUtf8(error.what()));
}

void ReaderWindow::openMaps(const QStringList &directories)
{
    for (const QString &named : directories) {
        // The next run may begin elsewhere.
        const QString directory = QFileInfo(named).absoluteFilePath();
        // Twice would be each map twice.
        if (m_directories.contains(directory))
            continue;
        try {
            m_manager.loadSpecInformation(QUrl::fromLocalFile(directory));
            m_directories += directory;
        } catch (const std::exception &error) {
            complain(localized("The maps could not all be read.", "alert"), error);
        }
    }
    QSettings().setValue(mapsKey, m_directories);
    preferSpecification();
    refreshPlaceholders();
}

QStringList ReaderWindow::rememberedMaps()
{
    return QSettings().value(mapsKey).toStringList();
}

void ReaderWindow::offerFiles(const QStringList &paths)
{
    std::vector<QUrl> offered;
    std::transform(paths.begin(), paths.end(), std::back_inserter(offered), fileUrl);
    // What a map is offered first it takes, and an imported copy would take the file's place.
    const std::vector<QUrl> &imported = m_manager.auxiliaryFiles();
    offered.insert(offered.end(), imported.begin(), imported.end());
    m_manager.setAuxiliaryFiles(std::move(offered));
}

void ReaderWindow::bindFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        try {
            if (!isBound(m_manager, fileUrl(path)))
                m_manager.bindAuxiliaryFile(fileUrl(path));
        } catch (const std::exception &error) {
            complain(localized("The file could not be opened.", "alert"), error);
        }
    }
    preferSpecification();
    refreshPlaceholders();
}

void ReaderWindow::chooseMaps()
{
    choose(*this, localized("Open Maps", "title of a dialog"), QFileDialog::Directory, {},
           [this](const QStringList &directories) { openMaps(directories); });
}

void ReaderWindow::chooseFiles()
{
    choose(*this, localized("Import PDF", "title of a dialog"), QFileDialog::ExistingFiles,
           localized("PDF files (*.pdf)", "filter of a dialog"), [this](const QStringList &paths) {
               std::vector<QUrl> files;
               for (const QString &path : paths)
                   files.push_back(QUrl::fromLocalFile(path));
               importFiles(files);
           });
}

void ReaderWindow::importFiles(const std::vector<QUrl> &files)
{
    if (!files.empty())
        m_import->start(files, this);
}

void ReaderWindow::chooseCitations()
{
    choose(*this, localized("Open Citations", "title of a dialog"), QFileDialog::ExistingFile,
           localized("Citations (*.json)", "filter of a dialog"),
           [this](const QStringList &paths) { openCitations(paths.front()); });
}

void ReaderWindow::chooseReferences()
{
    choose(*this, localized("Audit References", "title of a dialog"), QFileDialog::ExistingFile, {},
           [this](const QStringList &paths) { auditFile(paths.front()); });
}

CitationWindow *ReaderWindow::openCitations(const QString &path)
{
    auto *citations = new CitationWindow(this);
    citations->setWindowFlag(Qt::Window);
    connect(citations, &CitationWindow::auditRequested, this, &ReaderWindow::audit);
    connect(citations, &CitationWindow::coverageRequested, this, &ReaderWindow::showCoverage);
    citations->show();
    if (!path.isEmpty())
        citations->open(path);
    return citations;
}

bool ReaderWindow::requireSpecification(const ReferenceAudit &audit)
{
    if (audit.specification())
        return true;
    Sheet::showMessage(
        *this, localized("There is nothing to audit.", "alert"),
        localized("None of the references leads into a specification whose PDF is imported.",
                  "alert"));
    return false;
}

void ReaderWindow::audit(const ReferenceCoverage &references)
{
    const ReferenceAudit audit(m_finder, references);
    if (requireSpecification(audit))
        ControllerWindow::show(audit.browser(), u"Audit"_s, *this);
}

void ReaderWindow::showCoverage(const ReferenceCoverage &references)
{
    const ReferenceAudit audit(m_finder, references);
    if (!requireSpecification(audit))
        return;
    m_manager.showSpecCoverage(audit.references(), audit.specification());
    // The marks may begin hundreds of pages into the document.
    const auto detail = std::dynamic_pointer_cast<SpecDetailViewController>(m_detail->controller());
    if (detail)
        detail->setEntry(audit.firstEntry());
    raise();
    activateWindow();
}

void ReaderWindow::auditFile(const QString &path)
{
    try {
        audit(ReferenceAudit::readFile(path));
    } catch (const std::exception &error) {
        complain(localized("The references could not be read.", "alert"), error);
    }
}

void ReaderWindow::lookUp(const QString &text)
{
    try {
        std::vector<std::shared_ptr<SpecificationEntry>> entries;
        for (const auto &reference : m_finder.resolve(text))
            entries.insert(entries.end(), reference.entries.begin(), reference.entries.end());
        if (entries.empty()) {
            m_summary->setPlaceholder(
                localized("No entry for “%1”.\n\nType a number such as 4.2, a figure such as "
                          "Fig. 3-7, or words of a title.",
                          "answer of a look-up")
                    .arg(text));
            m_summary->setController(nullptr);
            return;
        }
        showEntry(entries.front());
    } catch (const std::exception &error) {
        complain(localized("The entry could not be looked up.", "alert"), error);
    }
}

void ReaderWindow::showEntry(const std::shared_ptr<SpecificationEntry> &entry)
{
    const auto specification = entry->specification();
    if (!specification)
        return;
    m_recent->add(*entry);
    showSummary(entry);
    m_manager.showDetailViewController(specification->generateURL(*entry, true, true));
}

void ReaderWindow::showSummary(const std::shared_ptr<SpecificationEntry> &entry)
{
    m_shownEntry = entry;
    // Number, title and source are known from the map, so there is something to see without a PDF.
    m_summary->setController(std::make_shared<SpecEntrySummaryViewController>(entry));
}

void ReaderWindow::displayDetail(const ViewControllerPtr &controller)
{
    const auto shown = std::dynamic_pointer_cast<SpecDetailViewController>(m_detail->controller());
    const auto detail = std::dynamic_pointer_cast<SpecDetailViewController>(controller);
    const auto entry = detail ? detail->entry() : nullptr;
    const bool isSame = shown && entry && shown->specification() == detail->specification() &&
                        !detail->showsReferenceCoverage();
    if (isSame) {
        // The document stays open, with its zoom and its way back.
        shown->selectEntry(entry);
    } else {
        if (detail) {
            detail->setAllowsEntrySelection(true);
            detail->setDelegate(m_listener);
            if (entry)
                detail->selectEntry(entry);
        }
        m_detail->setController(controller);
    }
    const auto current = detail ? detail->specification() : nullptr;
    showSource(current.get());
    preferSpecification();
    // A link may have led here.
    if (entry && entry != m_shownEntry.lock()) {
        m_recent->add(*entry);
        showSummary(entry);
    }
}

void ReaderWindow::displayBrowser(const ViewControllerPtr &controller)
{
    ControllerWindow::show(controller, u"Specifications"_s, *this);
}

void ReaderWindow::entryChosenInDocument(const std::shared_ptr<SpecificationEntry> &entry)
{
    // The same choice may be told twice.
    if (!entry || entry == m_shownEntry.lock())
        return;
    m_recent->add(*entry);
    showSummary(entry);
}

void ReaderWindow::showSource(const Specification *specification)
{
    setWindowTitle(specification ? u"%1 – Tavrin"_s.arg(specification->title())
                                 : QStringLiteral("Tavrin"));
}

void ReaderWindow::filesChanged()
{
    preferSpecification();
    refreshPlaceholders();
    // A prompt for a file that has come gives way to what was asked for.
    const auto entry = m_shownEntry.lock();
    const bool isPrompt =
        m_detail->controller() &&
        !std::dynamic_pointer_cast<SpecDetailViewController>(m_detail->controller());
    const auto specification = entry ? entry->specification() : nullptr;
    if (isPrompt && specification && specification->areFileRequirementsSatisfied())
        showEntry(entry);
}

void ReaderWindow::preferSpecification()
{
    const auto detail = std::dynamic_pointer_cast<SpecDetailViewController>(m_detail->controller());
    auto preferred = detail ? detail->specification() : nullptr;
    if (!preferred) {
        preferred = m_manager.specificationWhere([](const Specification &specification) {
            return specification.areFileRequirementsSatisfied();
        });
    }
    m_finder.setPreferred(preferred);
}

void ReaderWindow::refreshPlaceholders()
{
    const auto &specifications = m_manager.specifications();
    const bool isAnyBound =
        std::any_of(specifications.begin(), specifications.end(), [](const auto &specification) {
            return specification->areFileRequirementsSatisfied();
        });
    m_summary->setPlaceholder(
        localized("Look up a number, a title or a spec URL above.\nCtrl+K goes to any entry.",
                  "empty state"));
    if (specifications.empty()) {
        m_detail->setPlaceholder(
            localized("No maps are open.\n\nChoose a directory of spec maps with File ▸ Open Maps.",
                      "empty state"));
    } else if (!isAnyBound) {
        m_detail->setPlaceholder(
            localized("Drop the PDF of a specification here to import it.", "empty state"));
    } else {
        m_detail->setPlaceholder(
            localized("Look up an entry to open its document.", "empty state"));
    }
}

void ReaderWindow::restoreState()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
        resize(firstSize);
    if (!m_splitter->restoreState(settings.value(splitterKey).toByteArray()))
        m_splitter->setSizes({sideWidth, firstSize.width() - sideWidth});
    if (!m_sideSplitter->restoreState(settings.value(sideSplitterKey).toByteArray()))
        m_sideSplitter->setSizes({firstSize.height() * 3, firstSize.height()});
}

void ReaderWindow::closeEvent(QCloseEvent *event)
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(splitterKey, m_splitter->saveState());
    settings.setValue(sideSplitterKey, m_sideSplitter->saveState());
    QMainWindow::closeEvent(event);
}

void ReaderWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (pdfsOf(*event->mimeData()).empty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_dropTarget->setGeometry(
        centralWidget()->geometry().adjusted(padding, padding, -padding, -padding));
    m_dropTarget->show();
    m_dropTarget->raise();
}

void ReaderWindow::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropTarget->hide();
}

void ReaderWindow::dropEvent(QDropEvent *event)
{
    m_dropTarget->hide();
    const auto files = pdfsOf(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The source of the drag waits for this to return.
    QMetaObject::invokeMethod(
        this, [this, files] { importFiles(files); }, Qt::QueuedConnection);
}

} // namespace Tavrin::Reader
