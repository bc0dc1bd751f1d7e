// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>

#include <Tavrin/interface/files/AuxiliaryFileArrayController.h>
#include <Tavrin/interface/files/AuxiliaryFileImport.h>
#include <Tavrin/interface/files/AuxiliaryFileTableCellView.h>
#include <Tavrin/interface/files/FileDropOverlay.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <utility>

#include "ui_AuxiliaryFileBrowserController.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Failure = AuxiliaryFileImport::Failure;

constexpr int addSegment = 0;
constexpr int removeSegment = 1;
constexpr int narrowestColumn = 48;
/// Around a row's button, and on either side of its text, in pixels.
constexpr int buttonMargin = 2;
constexpr int buttonPadding = 14;

bool isSameRow(const AuxiliaryFile &a, const AuxiliaryFile &b)
{
    return a.spec() == b.spec() && (a.spec() || a.urls() == b.urls());
}

/// The specifications with the files that each one has, then the files that none has.
std::vector<AuxiliaryFilePtr> filesOf(SpecificationManager &manager)
{
    std::vector<QUrl> unmatched = manager.auxiliaryFiles();
    std::vector<AuxiliaryFilePtr> rows;
    for (const auto &specification : manager.specifications()) {
        if (specification->auxiliaryFileRequirements().empty())
            continue;
        rows.push_back(std::make_shared<AuxiliaryFile>(
            specification, specification == manager.primarySpecification()));
        for (const QUrl &url : rows.back()->urls())
            unmatched.erase(std::remove(unmatched.begin(), unmatched.end(), url), unmatched.end());
    }
    for (const QUrl &url : unmatched)
        rows.push_back(std::make_shared<AuxiliaryFile>(url));
    return rows;
}

} // namespace

std::shared_ptr<AuxiliaryFileBrowserController>
AuxiliaryFileBrowserController::standard(SpecificationManager &manager)
{
    return std::make_shared<AuxiliaryFileBrowserController>(nullptr, manager);
}

AuxiliaryFileBrowserController::AuxiliaryFileBrowserController(QObject *parent,
                                                               SpecificationManager &manager)
    : ViewController(parent),
      m_manager(manager),
      m_arrayController(std::make_unique<AuxiliaryFileArrayController>()),
      m_import(std::make_unique<AuxiliaryFileImport>(nullptr, manager)),
      m_instructionText(
          localized("Import a supported specification to look up reference topics inline:",
                    "auxiliary file browser instruction"))
{
    m_arrayController->setSelectability([this](int row) { return tableViewShouldSelectRow(row); });
    connect(m_import.get(), &AuxiliaryFileImport::finished, this,
            [this](const std::vector<Failure> &failures) {
                AuxiliaryFileImport::showFailures(window(), failures);
                Q_EMIT importFinished();
            });
}

AuxiliaryFileBrowserController::~AuxiliaryFileBrowserController()
{
    delete m_accessoryView.data();
    // It outlives the model.
    if (m_tableView)
        m_tableView->setModel(nullptr);
}

const std::vector<AuxiliaryFilePtr> &AuxiliaryFileBrowserController::auxiliaryFiles() const
{
    return m_arrayController->arrangedObjects();
}

// View

std::unique_ptr<QWidget> AuxiliaryFileBrowserController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::AuxiliaryFileBrowserController form;
    form.setupUi(view.get());
    m_instructionLabel = form.instructionLabel;
    m_tableView = form.tableView;
    m_segmentedControl = form.segmentedControl;
    m_accessoryContainerView = form.accessoryContainerView;
    return view;
}

void AuxiliaryFileBrowserController::viewDidLoad()
{
    setTitle(localized("Specifications", "auxiliary file browser title"));
    setInstructionText(m_instructionText);
    setUpTable();
    setUpControl();
    reload();
    // What the parts of the view don't take comes to the view.
    view()->setAcceptDrops(true);
    m_observation = m_manager.observeFiles([this] { specAuxiliaryFilesChanged(); });
    installAccessoryView();
}

void AuxiliaryFileBrowserController::setUpTable()
{
    m_tableView->setModel(m_arrayController.get());
    m_tableView->setItemDelegate(new AuxiliaryFileTableCellView(m_tableView));
    m_tableView->setAccessibleName(localized("Specifications", "auxiliary file browser title"));
    m_tableView->viewport()->setAcceptDrops(false);
    m_tableView->installEventFilter(this);
    QHeaderView *header = m_tableView->horizontalHeader();
    header->setMinimumSectionSize(narrowestColumn);
    header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(AuxiliaryFileArrayController::NameColumn, QHeaderView::Stretch);
    header->setSectionsClickable(false);
    m_tableView->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_tableView->verticalHeader()->setDefaultSectionSize(QPushButton().sizeHint().height() +
                                                         2 * buttonMargin);
    m_overlay = new FileDropOverlay(*m_tableView);
    connect(m_tableView, &QTableView::doubleClicked, this,
            [this](const QModelIndex &index) { tableViewRowDoubleClicked(index.row()); });
    connect(m_tableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AuxiliaryFileBrowserController::updateControl);
}

void AuxiliaryFileBrowserController::setUpControl()
{
    m_segmentedControl->setAccessibleName(
        localized("Import and remove", "accessible name of the buttons below imported files"));
    m_segmentedControl->addSegment(u"+"_s,
                                   localized("Import a file", "button below imported files"));
    m_segmentedControl->addSegment(u"\u2212"_s, localized("Remove the files of the selected rows",
                                                          "button below imported files"));
    connect(m_segmentedControl, &SegmentedControl::pressed, this,
            &AuxiliaryFileBrowserController::segmentedControlButtonPressed);
}

void AuxiliaryFileBrowserController::setAccessoryView(std::unique_ptr<QWidget> accessory)
{
    delete m_accessoryView.data();
    m_accessoryView = accessory.release();
    if (isViewLoaded())
        installAccessoryView();
}

void AuxiliaryFileBrowserController::installAccessoryView()
{
    m_accessoryContainerView->setVisible(!m_accessoryView.isNull());
    if (m_accessoryView)
        m_accessoryContainerView->layout()->addWidget(m_accessoryView);
}

void AuxiliaryFileBrowserController::setInstructionText(const QString &text)
{
    m_instructionText = text;
    if (!m_instructionLabel)
        return;
    m_instructionLabel->setText(text);
    m_instructionLabel->setHidden(text.isEmpty());
}

/// Null while nobody can see the view.
QWidget *AuxiliaryFileBrowserController::window() const
{
    QWidget *window = m_tableView ? m_tableView->window() : nullptr;
    return window && window->isVisible() ? window : nullptr;
}

// Rows

void AuxiliaryFileBrowserController::reload()
{
    auto *manager = m_manager.get();
    std::vector<AuxiliaryFilePtr> rows =
        manager ? filesOf(*manager) : std::vector<AuxiliaryFilePtr>();
    const std::vector<AuxiliaryFilePtr> selected = selectedObjects();
    m_arrayController->rearrange(std::move(rows));
    if (!m_tableView)
        return;
    selectRows(selected);
    addViewButtons();
    updateHint();
    updateControl();
}

/// Those that are what the given ones were.
void AuxiliaryFileBrowserController::selectRows(const std::vector<AuxiliaryFilePtr> &rows)
{
    QItemSelectionModel *selection = m_tableView->selectionModel();
    for (int i = 0; i < m_arrayController->rowCount(); ++i) {
        const AuxiliaryFile &candidate = *m_arrayController->row(i);
        const bool wasSelected = std::any_of(
            rows.begin(), rows.end(), [&](const auto &row) { return isSameRow(*row, candidate); });
        if (wasSelected && tableViewShouldSelectRow(i))
            selection->select(m_arrayController->index(i, 0),
                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

void AuxiliaryFileBrowserController::addViewButtons()
{
    for (int i = 0; i < m_arrayController->rowCount(); ++i) {
        if (m_arrayController->row(i)->viewButtonHidden())
            continue;
        m_tableView->setIndexWidget(
            m_arrayController->index(i, AuxiliaryFileArrayController::ViewColumn),
            makeViewButton(i));
    }
}

/// In a cell of its own, with a little room around it.
QWidget *AuxiliaryFileBrowserController::makeViewButton(int row)
{
    auto *button = new QPushButton(localized("View", "button of an imported file"));
    button->setAccessibleName(
        localized("View %1", "accessible name of the button of an imported file")
            .arg(m_arrayController->row(row)->fileName()));
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(button->text()) +
                          2 * buttonPadding);
    // By the keyboard a row is opened by Return, so that Tab needn't go through all rows.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, row] { viewButtonPressed(row); });
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(2 * buttonMargin, buttonMargin, 2 * buttonMargin, buttonMargin);
    layout->addWidget(button);
    return cell;
}

/// Until something is imported.
void AuxiliaryFileBrowserController::updateHint()
{
    const auto &rows = auxiliaryFiles();
    const bool isAnythingImported =
        std::any_of(rows.begin(), rows.end(), [](const auto &row) { return !row->urls().empty(); });
    m_overlay->setHint(isAnythingImported ? QString()
                                          : localized("Drop files here, or press + to choose one.",
                                                      "hint in the table of imported files"));
}

void AuxiliaryFileBrowserController::updateControl()
{
    m_segmentedControl->setSegmentEnabled(removeSegment, !selectedObjects().empty());
}

bool AuxiliaryFileBrowserController::tableViewShouldSelectRow(int row) const
{
    const AuxiliaryFilePtr file = m_arrayController->row(row);
    if (!file)
        qCWarning(interfaceLog) << "Couldn't get auxiliary file to validate selection";
    return file && file->isEnabled();
}

std::vector<AuxiliaryFilePtr> AuxiliaryFileBrowserController::selectedObjects() const
{
    std::vector<AuxiliaryFilePtr> rows;
    if (!m_tableView)
        return rows;
    for (const QModelIndex &index : m_tableView->selectionModel()->selectedRows())
        rows.push_back(m_arrayController->row(index.row()));
    return rows;
}

void AuxiliaryFileBrowserController::openRow(int row)
{
    const AuxiliaryFilePtr file = m_arrayController->row(row);
    const auto specification = file ? file->spec() : nullptr;
    if (!file)
        qCWarning(interfaceLog) << "Couldn't get auxiliary file";
    else if (!specification)
        qCWarning(interfaceLog) << "No loaded spec with this URL";
    else if (auto *manager = m_manager.get())
        manager->showDetailViewController(specification);
}

// Adding and removing

void AuxiliaryFileBrowserController::segmentedControlButtonPressed(int segment)
{
    if (segment == addSegment)
        chooseFile();
    else
        removeSelection();
}

void AuxiliaryFileBrowserController::chooseFile()
{
    if (!window())
        return;
    auto *panel = new QFileDialog(window(), localized("Choose a specification file to import.",
                                                      "auxiliary file browser open panel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowModality(Qt::WindowModal);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    panel->setFileMode(QFileDialog::ExistingFile);
    QStringList patterns;
    for (const QString &type : importableTypes())
        patterns += u"*."_s + type;
    panel->setNameFilter(localized("Specifications", "file type in a panel") +
                         u" (%1)"_s.arg(patterns.join(u' ')));
    // Later, when the panel has left the screen to the sheet of the import.
    connect(
        panel, &QFileDialog::fileSelected, this,
        [this](const QString &path) { importFiles({QUrl::fromLocalFile(path)}); },
        Qt::QueuedConnection);
    panel->open();
}

void AuxiliaryFileBrowserController::removeSelection()
{
    auto *manager = m_manager.get();
    if (!manager)
        return;
    std::vector<Failure> failures;
    // The rows are read anew with each file that goes.
    for (const AuxiliaryFilePtr &row : selectedObjects()) {
        const std::vector<QUrl> urls = row->urls();
        for (const QUrl &url : urls) {
            try {
                manager->unregisterAuxiliaryFile(url);
                row->removeUrl(url);
            } catch (const std::exception &error) {
                failures.emplace_back(url, error);
            }
        }
    }
    AuxiliaryFileImport::showFailures(window(), failures);
}

void AuxiliaryFileBrowserController::importFiles(const std::vector<QUrl> &urls)
{
    m_import->start(urls, window());
}

bool AuxiliaryFileBrowserController::isImporting() const
{
    return m_import->isRunning();
}

QStringList AuxiliaryFileBrowserController::importableTypes() const
{
    if (!m_allowedFileTypes.isEmpty())
        return m_allowedFileTypes;
    const auto *manager = m_manager.get();
    if (!manager)
        return {};
    QStringList types;
    for (const auto &specification : manager->specifications()) {
        for (const auto &requirement : specification->auxiliaryFileRequirements())
            types += requirement->fileType;
    }
    types.removeDuplicates();
    return types;
}

bool AuxiliaryFileBrowserController::isImportable(const QUrl &url) const
{
    const QFileInfo file(url.toLocalFile());
    return url.isLocalFile() && !file.isDir() && importableTypes().contains(file.suffix());
}

std::vector<QUrl> AuxiliaryFileBrowserController::importableUrls(const QMimeData &data) const
{
    const QList<QUrl> dragged = data.urls();
    std::vector<QUrl> urls;
    std::copy_if(dragged.begin(), dragged.end(), std::back_inserter(urls),
                 [this](const QUrl &url) { return isImportable(url); });
    return urls;
}

// Input

bool AuxiliaryFileBrowserController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tableView && event->type() == QEvent::KeyPress &&
        handleKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    if (isViewLoaded() && watched == view() && handleDrag(*event))
        return true;
    return ViewController::eventFilter(watched, event);
}

bool AuxiliaryFileBrowserController::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openRow(m_tableView->currentIndex().row());
        return true;
    case Qt::Key_Insert:
        segmentedControlButtonPressed(addSegment);
        return true;
    case Qt::Key_Delete:
        segmentedControlButtonPressed(removeSegment);
        return true;
    default:
        return false;
    }
}

/// Whether the event was part of a drag.
bool AuxiliaryFileBrowserController::handleDrag(QEvent &event)
{
    switch (event.type()) {
    case QEvent::DragLeave:
        m_overlay->setHighlighted(false);
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return false;
    }
    auto &drag = static_cast<QDropEvent &>(event);
    const std::vector<QUrl> urls = importableUrls(*drag.mimeData());
    const bool isDrop = event.type() == QEvent::Drop;
    m_overlay->setHighlighted(!urls.empty() && !isDrop);
    drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(!urls.empty());
    if (isDrop && !urls.empty())
        importFiles(urls);
    return true;
}

} // namespace Tavrin
