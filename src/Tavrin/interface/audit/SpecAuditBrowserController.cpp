// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/SpecAuditBrowserController.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <utility>

#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/interface/audit/AuditExport.h>
#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/BrowserMatchesLabelTransformer.h>
#include <Tavrin/interface/audit/BrowserSortMenu.h>
#include <Tavrin/interface/audit/BrowserTable.h>
#include <Tavrin/interface/audit/BrowserTableView.h>
#include <Tavrin/interface/toolkit/BackgroundWork.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "ui_SpecAuditBrowserController.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Beside the button's text, on both sides together, in pixels.
constexpr int buttonPadding = 36;
constexpr int referenceColumn = 0;

ViewControllerPtr detailOf(const SpecificationEntry &entry, const QString &label)
{
    const auto specification = entry.specification();
    const bool isReadable = specification && specification->areFileRequirementsSatisfied();
    return isReadable ? specification->detailViewController(label) : nullptr;
}

} // namespace

SpecAuditBrowserController::SpecAuditBrowserController(const QStringList &labels,
                                                       std::shared_ptr<PDFSpecification> spec,
                                                       const QStringList &customHeadings,
                                                       const Components &customComponents,
                                                       QObject *parent,
                                                       SpecificationManager &manager)
    : ViewController(parent),
      m_manager(manager),
      m_spec(std::move(spec)),
      m_labels(labels),
      m_customHeadings(customHeadings),
      m_customComponents(customComponents),
      m_arrayController(new BrowserArrayController(this)),
      m_openAction(new QAction(localized("Open Entry", "spec audit menu item"), this)),
      m_copyAction(new QAction(this)),
      m_copyCellAction(new QAction(localized("Copy Cell", "spec audit menu item"), this)),
      m_exportAction(new QAction(localized("Export…", "spec audit menu item"), this))
{
}

SpecAuditBrowserController::~SpecAuditBrowserController()
{
    delete m_sheet;
}

QTableView *SpecAuditBrowserController::tableView() const
{
    return m_tableView;
}

QLabel *SpecAuditBrowserController::summaryLabel() const
{
    return m_summaryLabel;
}

QLineEdit *SpecAuditBrowserController::searchField() const
{
    return m_searchField;
}

QLabel *SpecAuditBrowserController::searchResultsLabel() const
{
    return m_searchResultsLabel;
}

const std::vector<BrowserSpecReferenceItem> &SpecAuditBrowserController::entryDict() const
{
    return m_arrayController->content();
}

// The view

std::unique_ptr<QWidget> SpecAuditBrowserController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecAuditBrowserController form;
    form.setupUi(view.get());
    m_tableView = form.tableView;
    m_summaryLabel = form.summaryLabel;
    m_searchField = form.searchField;
    m_searchResultsLabel = form.searchResultsLabel;
    m_searchField->setPlaceholderText(localized("Search", "spec audit search field"));
    m_searchField->setAccessibleName(m_searchField->placeholderText());
    m_tableView->setAccessibleName(localized("Spec References", "spec audit window title"));
    form.exportButton->setText(m_exportAction->text());
    form.exportButton->setMinimumWidth(
        form.exportButton->fontMetrics().horizontalAdvance(m_exportAction->text()) + buttonPadding);
    connect(form.exportButton, &QPushButton::clicked, m_exportAction, &QAction::trigger);
    connect(m_exportAction, &QAction::enabledChanged, form.exportButton, &QWidget::setEnabled);
    connect(m_searchField, &QLineEdit::textChanged, this,
            &SpecAuditBrowserController::searchFieldValueChanged);
    m_searchField->installEventFilter(this);
    setUpTable();
    makeActions(*view);
    QWidget::setTabOrder(m_searchField, m_tableView);
    QWidget::setTabOrder(m_tableView, form.exportButton);
    return view;
}

void SpecAuditBrowserController::setUpTable()
{
    m_tableView->setRows(m_arrayController);
    m_tableView->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tableView, &BrowserTableView::rowOpened, this,
            &SpecAuditBrowserController::tableViewRowDoubleClicked);
    connect(m_tableView, &BrowserTableView::copyRequested, this, &SpecAuditBrowserController::copy);
    connect(m_tableView, &BrowserTableView::cellCopyRequested, this,
            &SpecAuditBrowserController::copyCell);
    connect(m_tableView, &BrowserTableView::choiceChanged, this,
            &SpecAuditBrowserController::validateActions);
    connect(m_tableView, &QWidget::customContextMenuRequested, this,
            &SpecAuditBrowserController::showContextMenu);
}

void SpecAuditBrowserController::makeActions(QWidget &view)
{
    auto *find = new QAction(&view);
    find->setShortcuts(QKeySequence::Find);
    find->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    view.addAction(find);
    connect(find, &QAction::triggered, m_searchField, [field = m_searchField.data()] {
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    });
    // The table hears these keys by itself; the menu tells of them.
    m_openAction->setShortcut(Qt::Key_Return);
    m_copyAction->setShortcuts(QKeySequence::Copy);
    m_copyCellAction->setShortcut(BrowserTableView::copyCellKeys());
    for (QAction *action : {m_copyAction, m_copyCellAction, m_openAction}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
    }
    connect(m_openAction, &QAction::triggered, this,
            &SpecAuditBrowserController::tableViewRowDoubleClicked);
    connect(m_copyAction, &QAction::triggered, this, &SpecAuditBrowserController::copy);
    connect(m_copyCellAction, &QAction::triggered, this, &SpecAuditBrowserController::copyCell);
    connect(m_exportAction, &QAction::triggered, this, &SpecAuditBrowserController::exportAudit);
    validateActions();
}

void SpecAuditBrowserController::viewDidLoad()
{
    setTitle(localized("Spec References", "spec audit window title"));
    layOut({});
    searchFieldValueChanged();
}

void SpecAuditBrowserController::viewDidAppear()
{
    startAudit();
}

// The audit

void SpecAuditBrowserController::startAudit()
{
    delete m_sheet;
    m_sheet = ProgressSheet::begin(
        *view(), localized("Loading spec references…", "spec audit progress message"),
        ProgressSheet::Kind::Determinate);
    m_audit.reset();
    if (!m_spec) {
        m_sheet->setEndsOnEscape(true);
        qCWarning(interfaceLog) << "The audit browser has no specification to audit";
        return;
    }
    m_audit = std::make_unique<BackgroundWork>();
    connect(m_audit.get(), &BackgroundWork::progressed, m_sheet, &ProgressSheet::setValue);
    connect(m_audit.get(), &BackgroundWork::finished, this,
            &SpecAuditBrowserController::finishAudit);
    m_result = std::make_shared<BrowserTable>();
    // Columns without headings of their own get empty ones, so that none is lost.
    const bool hasHeadings = !m_customHeadings.isEmpty() || m_customComponents.empty();
    const auto headings = hasHeadings ? std::optional(m_customHeadings) : std::nullopt;
    m_audit->start([auditor = PDFSpecAuditor(m_spec).detached(), labels = m_labels,
                    components = m_customComponents, headings,
                    result = m_result](const BackgroundWork::Progress &progress) {
        const auto lock = auditor.spec()->readingLock();
        *result = BrowserTable(auditor.auditCSVComponents(labels, components, headings, progress),
                               labels);
    });
}

void SpecAuditBrowserController::finishAudit(const QString &error)
{
    m_audit.release()->deleteLater();
    const auto result = std::exchange(m_result, nullptr);
    if (!m_tableView)
        return;
    layOut(std::move(*result));
    if (m_sheet)
        m_sheet->end(QDialog::Accepted);
    if (!error.isEmpty())
        Sheet::showMessage(*view(), localized("The audit failed.", "spec audit error"), error);
    Q_EMIT audited();
}

void SpecAuditBrowserController::layOut(BrowserTable &&table)
{
    m_summaryLabel->setText(table.summary());
    m_columnIdentifiers.clear();
    std::vector<int> widths;
    for (const BrowserTable::Column &column : table.columns) {
        m_columnIdentifiers += column.identifier;
        widths.push_back(column.width);
    }
    m_arrayController->setContent(std::move(table.columns), std::move(table.items));
    for (std::size_t column = 0; column < widths.size(); ++column)
        m_tableView->setColumnWidth(int(column), widths[column]);
    m_exportAction->setEnabled(m_spec && !widths.empty());
    updateMatches();
    validateActions();
}

// Searching

void SpecAuditBrowserController::searchFieldValueChanged()
{
    m_arrayController->setFilterWords(m_searchField->text());
    updateMatches();
}

void SpecAuditBrowserController::updateMatches()
{
    m_searchResultsLabel->setText(
        BrowserMatchesLabelTransformer::transformedValue(m_arrayController->rowCount()));
    m_searchResultsLabel->setHidden(m_searchField->text().isEmpty());
    updateEmptyText();
}

void SpecAuditBrowserController::updateEmptyText()
{
    if (m_arrayController->columnCount() == 0)
        m_tableView->setEmptyText({});
    else if (m_arrayController->content().empty())
        m_tableView->setEmptyText(
            localized("There are no references to audit yet. Refer to the specification in your "
                      "work, and then open this table again.",
                      "spec audit empty table"));
    else
        m_tableView->setEmptyText(
            localized("No reference holds all of these words. Search for fewer words, or press "
                      "Escape to see all references.",
                      "spec audit empty table"));
}

bool SpecAuditBrowserController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_searchField && event->type() == QEvent::KeyPress && passKeyToTable(*event))
        return true;
    return ViewController::eventFilter(watched, event);
}

/// Results are walked through and opened while one types.
bool SpecAuditBrowserController::passKeyToTable(QEvent &event)
{
    const auto &key = static_cast<QKeyEvent &>(event);
    switch (key.key()) {
    case Qt::Key_Escape:
        if (m_searchField->text().isEmpty())
            return false;
        m_searchField->clear();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_tableView->currentIndex().isValid() && m_arrayController->rowCount() > 0)
            m_tableView->setCurrentIndex(m_arrayController->index(0, 0));
        [[fallthrough]];
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_tableView, &event);
        return true;
    default:
        return false;
    }
}

// The menu

bool SpecAuditBrowserController::validateMenuItem(QAction &item) const
{
    const bool isClicked = m_tableView && m_tableView->clickedIndex().isValid();
    if (&item == m_copyAction) {
        const auto selected = m_tableView ? m_tableView->selectedRows().size() : 0;
        item.setText(selected < 2 ? localized("Copy Row", "spec audit menu item")
                                  : localized("Copy Rows", "spec audit menu item"));
        return selected > 0 || isClicked;
    }
    if (&item == m_copyCellAction || &item == m_openAction)
        return isClicked;
    return true;
}

void SpecAuditBrowserController::validateActions()
{
    for (QAction *action : {m_openAction, m_copyAction, m_copyCellAction})
        action->setEnabled(validateMenuItem(*action));
}

void SpecAuditBrowserController::showContextMenu(const QPoint &position)
{
    auto *menu = new QMenu(m_tableView);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(m_openAction);
    menu->addSeparator();
    menu->addActions({m_copyAction, m_copyCellAction});
    menu->addSeparator();
    if (m_arrayController->columnCount() > 0)
        menu->addMenu(new BrowserSortMenu(*m_tableView, *m_arrayController, menu));
    menu->addAction(m_exportAction);
    menu->popup(m_tableView->viewport()->mapToGlobal(position));
}

std::vector<int> SpecAuditBrowserController::rowsToCopy() const
{
    auto rows = m_tableView->selectedRows();
    if (rows.empty() && m_tableView->clickedIndex().isValid())
        rows.push_back(m_tableView->clickedIndex().row());
    return rows;
}

void SpecAuditBrowserController::copy()
{
    QStringList lines;
    for (const int row : rowsToCopy()) {
        const auto *item = m_arrayController->arrangedItem(row);
        QStringList values;
        for (int column = 0; column < m_columnIdentifiers.size(); ++column)
            values += u'"' + item->value(column) + u'"';
        lines += values.join(u',');
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void SpecAuditBrowserController::copyCell()
{
    const QModelIndex clicked = m_tableView->clickedIndex();
    if (const auto *item = m_arrayController->arrangedItem(clicked.row()))
        QGuiApplication::clipboard()->setText(item->value(clicked.column()));
}

void SpecAuditBrowserController::exportAudit()
{
    if (!m_spec)
        return;
    if (!m_export)
        m_export = std::make_unique<AuditExport>(m_spec, m_labels);
    m_export->begin(*view());
}

// Opening an entry

void SpecAuditBrowserController::tableViewRowDoubleClicked()
{
    const auto *item = m_arrayController->arrangedItem(m_tableView->clickedIndex().row());
    if (!item)
        return;
    auto *manager = m_manager.get();
    if (!manager)
        return;
    const auto display = manager->detailViewControllerDisplayBlock();
    if (!display) {
        qCWarning(interfaceLog) << "Tried to display a detail view controller, but the application "
                                   "hasn't set up a detail view controller display block.";
        return;
    }
    // A table of the host's may begin with the label; that of an audit ends with it.
    for (const int column : {referenceColumn, BrowserTable::labelColumn}) {
        const QString &label = item->value(column);
        if (const auto entry = entryFor(label)) {
            const auto detail = detailOf(*entry, label);
            display(detail ? detail : manager->makeNoSpecsController());
            return;
        }
    }
    qCWarning(interfaceLog).noquote()
        << "Could not find label" << item->value(referenceColumn) << "in any specification";
}

std::vector<std::shared_ptr<Specification>> SpecAuditBrowserController::lookupOrder() const
{
    std::vector<std::shared_ptr<Specification>> order{m_spec};
    if (const auto *manager = m_manager.get()) {
        order.push_back(manager->primarySpecification());
        order.insert(order.end(), manager->specifications().begin(),
                     manager->specifications().end());
    }
    return order;
}

std::shared_ptr<SpecificationEntry> SpecAuditBrowserController::entryFor(const QString &label) const
{
    // A range of lines that ends before it begins must not be looked up.
    if (SpecURL::hasReversedLines(label))
        return nullptr;
    for (const auto &specification : lookupOrder()) {
        if (auto entry = specification ? specification->entry(label) : nullptr)
            return entry;
    }
    return nullptr;
}

} // namespace Tavrin
