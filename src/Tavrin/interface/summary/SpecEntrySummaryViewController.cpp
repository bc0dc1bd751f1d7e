// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>

#include <Tavrin/interface/summary/DisplayComputation.h>
#include <Tavrin/interface/summary/SpecEntrySummaryCell.h>
#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/interface/toolkit/TableScrollView.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/SpecificationRegistry.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QDebug>
#include <QDesktopServices>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

#include "ui_HeaderCell.h"
#include "ui_SpecEntrySummaryViewController.h"

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

const QString headerColumn = u"HeaderColumn"_s;
const QString summaryColumn = u"SummaryColumn"_s;
const QString headerCell = u"HeaderCell"_s;
const QString summaryCell = u"SummaryCell"_s;

constexpr int defaultHeight = 44;

/// Widths in average characters. A summary keeps the lines of the print, so most of those should
/// find room.
constexpr int textualCharacters = 84;
constexpr int graphicalCharacters = 62;
constexpr int summaryMinCharacters = 16;
constexpr int summaryMaxCharacters = 120;
constexpr int headerMinCharacters = 8;
constexpr int headerMaxCharacters = 20;

std::unique_ptr<QWidget> makeHeaderCell()
{
    auto cell = std::make_unique<TableCellView>();
    Ui::HeaderCell form;
    form.setupUi(cell.get());
    cell->setTextField(form.textField);
    return cell;
}

/// A URL with a scheme. Nothing for a spec URL that QUrl would rewrite.
std::optional<QUrl> openableURL(const QString &destination)
{
    const QUrl url(destination, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty())
        return std::nullopt;
    if (SpecURL::components(destination) && url.toString(QUrl::FullyEncoded) != destination)
        return std::nullopt;
    return url;
}

} // namespace

SpecEntrySummaryViewController::SpecEntrySummaryViewController(EntryPtr entry, QObject *parent,
                                                               SpecificationManager &manager)
    : ViewController(parent),
      m_entry(std::move(entry)),
      m_manager(manager),
      m_computation(std::make_unique<DisplayComputation>())
{
    connect(m_computation.get(), &DisplayComputation::finished, this, [this] {
        m_isLoading = false;
        reload();
        Q_EMIT loaded();
    });
}

SpecEntrySummaryViewController::~SpecEntrySummaryViewController()
{
    if (m_tableView)
        m_tableView->setSource(nullptr);
}

void SpecEntrySummaryViewController::setCustomDisplayItems(
    const std::vector<EntryDisplayItem> &items)
{
    m_customDisplayItems = items;
    reload();
}

bool SpecEntrySummaryViewController::isLoading() const
{
    return m_isLoading;
}

// View

std::unique_ptr<QWidget> SpecEntrySummaryViewController::loadView()
{
    auto view = std::make_unique<QWidget>();
    Ui::SpecEntrySummaryViewController form;
    form.setupUi(view.get());
    form.noContentView->setText(
        localized("No imported specification has this reference. Check how it is written, or "
                  "import another document.",
                  "summary of no entry"));
    m_noContentView = form.noContentView;
    m_scrollView = form.scrollView;
    m_tableView = m_scrollView->tableView();
    const int characters =
        m_entry && isTextual(m_entry->type()) ? textualCharacters : graphicalCharacters;
    const int character = view->fontMetrics().averageCharWidth();
    m_tableView->addColumn({headerColumn, headerMinCharacters * character});
    m_tableView->addColumn({summaryColumn, characters * character, summaryMinCharacters * character,
                            summaryMaxCharacters * character});
    m_tableView->registerCell(headerCell, makeHeaderCell);
    m_tableView->registerCell(summaryCell, [] { return std::make_unique<SpecEntrySummaryCell>(); });
    m_tableView->setSource(this);
    return view;
}

void SpecEntrySummaryViewController::viewDidLoad()
{
    m_scrollView->setAccessibleName(localized("Summary of the entry", "accessible name"));
    connect(m_tableView, &TableView::laidOut, this,
            &SpecEntrySummaryViewController::updateHeightConstraint);
    if (m_entry) {
        m_isLoading = DisplayComputation::isNeeded(*m_entry);
        const double scale = qGuiApp->devicePixelRatio();
        if (m_isLoading || scale > 1)
            m_computation->start(m_entry, scale);
    }
    m_requestedWidth = m_tableView->column(summaryColumn)->width;
    fitWidths();
    m_tableView->resize(m_scrollView->widthConstraint(), 0);
    reload();
}

void SpecEntrySummaryViewController::reload()
{
    if (!m_tableView)
        return;
    m_noContentView->setHidden(numberOfRows() > 0);
    fitWidths();
    m_tableView->fitColumns(m_tableView->width());
    m_tableView->reloadData();
}

void SpecEntrySummaryViewController::fitWidths()
{
    TableView::Column *header = m_tableView->column(headerColumn);
    header->width = headerWidth();
    m_requestedWidth = std::max(m_requestedWidth, widestText());
    m_scrollView->setWidthConstraint(header->width + m_requestedWidth);
}

/// As wide as the longest caption, so that texts of any language find room.
int SpecEntrySummaryViewController::headerWidth() const
{
    static const QMargins margins = makeHeaderCell()->layout()->contentsMargins();
    const QFontMetrics metrics = m_tableView->fontMetrics();
    int width = headerMinCharacters * metrics.averageCharWidth();
    for (const EntryDisplayItem &item : items())
        width = std::max(width, metrics.horizontalAdvance(item.label) + 1);
    width = std::min(width, headerMaxCharacters * metrics.averageCharWidth());
    return width + margins.left() + margins.right();
}

/// What the texts take to keep their lines, of those for which the column can be made wide enough.
/// Print that is wrapped once more, by a word or two on each line, is hard to read.
int SpecEntrySummaryViewController::widestText()
{
    int widest = 0;
    const int bound = m_tableView->column(summaryColumn)->maxWidth;
    for (const EntryDisplayItem &item : items()) {
        if (item.objectValue.metaType() != QMetaType::fromType<StyledText>())
            continue;
        dummySummaryCell()->setObjectValue(item.objectValue);
        const int width = dummySummaryCell()->unwrappedWidth();
        if (width <= bound)
            widest = std::max(widest, width);
    }
    return widest;
}

void SpecEntrySummaryViewController::updateHeightConstraint()
{
    m_scrollView->setHeightConstraint(numberOfRows() > 0 ? m_tableView->height() : defaultHeight);
}

// Rows

std::vector<EntryDisplayItem> SpecEntrySummaryViewController::items() const
{
    if (!m_entry)
        return {};
    std::vector<EntryDisplayItem> items = m_isLoading ? loadingItems() : m_entry->displayItems();
    for (EntryDisplayItem &item : items) {
        const bool isPreview = item.objectValue.metaType() == QMetaType::fromType<QImage>();
        if (isPreview && !m_computation->preview().isNull())
            item.objectValue = m_computation->preview();
    }
    items.insert(items.end(), m_customDisplayItems.begin(), m_customDisplayItems.end());
    return items;
}

std::vector<EntryDisplayItem> SpecEntrySummaryViewController::loadingItems() const
{
    const auto entry = std::static_pointer_cast<PDFSpecification::Entry>(m_entry);
    const auto specification = entry->specification();
    std::vector<EntryDisplayItem> items = entry->knownDisplayItems();
    QString caption = localized("More", "spec entry field");
    if (specification && specification->allowsPreviews()) {
        caption = isTextual(entry->type()) ? localized("Summary", "spec entry field")
                                           : localized("Preview", "spec entry field");
    }
    items.push_back({caption, localized("Loading…", "spec entry value")});
    return items;
}

EntryDisplayItem SpecEntrySummaryViewController::item(int row) const
{
    const std::vector<EntryDisplayItem> all = items();
    return row >= 0 && std::size_t(row) < all.size() ? all[std::size_t(row)] : EntryDisplayItem();
}

int SpecEntrySummaryViewController::numberOfRows() const
{
    return int(items().size());
}

QWidget *SpecEntrySummaryViewController::tableViewCell(const TableView::Column *column, int row)
{
    if (!column)
        return nullptr;
    QString identifier;
    if (column->identifier == headerColumn)
        identifier = headerCell;
    else if (column->identifier == summaryColumn)
        identifier = summaryCell;
    else
        qCWarning(interfaceLog).noquote()
            << "Unrecognized column identifier:" << column->identifier;
    auto *cell = qobject_cast<TableCellView *>(m_tableView->makeView(identifier));
    if (!cell) {
        qCWarning(interfaceLog).noquote() << "Table view didn't make a valid view for table column"
                                          << column->identifier << "and row" << row;
        return nullptr;
    }
    const EntryDisplayItem shown = item(row);
    if (column->identifier == headerColumn) {
        cell->textField()->setText(shown.label);
    } else if (auto *summary = qobject_cast<SpecEntrySummaryCell *>(cell)) {
        summary->setObjectValue(shown.objectValue);
        summary->setDelegate(this);
        summary->setCaption(shown.label);
    } else {
        qCWarning(interfaceLog).noquote() << "Initialized the wrong cell type for a summary column:"
                                          << cell->metaObject()->className();
    }
    return cell;
}

SpecEntrySummaryCell *SpecEntrySummaryViewController::dummySummaryCell()
{
    if (!m_dummySummaryCell) {
        m_dummySummaryCell =
            qobject_cast<SpecEntrySummaryCell *>(m_tableView->makeView(summaryCell));
    }
    return m_dummySummaryCell;
}

int SpecEntrySummaryViewController::tableViewRowHeight(int row)
{
    if (!m_entry)
        return defaultHeight;
    TableView::Column *column = m_tableView->column(summaryColumn);
    if (!column || !dummySummaryCell()) {
        qCWarning(interfaceLog).noquote()
            << "Invalid initialization for computing row height; summary column index is"
            << m_tableView->columnIndex(summaryColumn) << "and dummy cell is"
            << m_dummySummaryCell.data();
        return defaultHeight;
    }
    m_dummySummaryCell->setGeometry(0, 0, column->width, 0);
    m_dummySummaryCell->setObjectValue(item(row).objectValue);
    m_dummyWidthConstraint.reset();
    if (const auto height = imageRowHeight(*column))
        return *height;
    m_dummyWidthConstraint = column->width;
    return m_dummySummaryCell->fittingSize(m_dummyWidthConstraint).height();
}

std::optional<int> SpecEntrySummaryViewController::imageRowHeight(TableView::Column &column)
{
    if (!m_dummySummaryCell->hasImage())
        return std::nullopt;
    const QSize fitting = m_dummySummaryCell->fittingSize();
    const int width = std::min(fitting.width(), column.maxWidth);
    // Asked for once: where the surroundings don't give it, the image is made smaller.
    if (column.width < width && m_requestedWidth < width)
        widenColumn(column, width);
    if (column.width >= width && width == fitting.width())
        return fitting.height();
    return std::nullopt;
}

void SpecEntrySummaryViewController::widenColumn(TableView::Column &column, int width)
{
    m_scrollView->setWidthConstraint(m_scrollView->widthConstraint() + width - m_requestedWidth);
    m_requestedWidth = width;
    column.width = width;
    // Later, since this may be asked in the midst of a layout.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_tableView)
                return;
            m_tableView->fitColumns(m_scrollView->isVisible() ? m_scrollView->viewport()->width()
                                                              : m_scrollView->widthConstraint());
            m_tableView->noteHeightOfRowsChanged();
        },
        Qt::QueuedConnection);
}

// Links

void SpecEntrySummaryViewController::summaryCellClickedLink(const QString &destination)
{
    const auto specification = m_entry ? m_entry->specification() : nullptr;
    EntryPtr found;
    // Looking up a URL whose lines end before they begin would be a fault of ours.
    if (!SpecURL::hasReversedLines(destination)) {
        found = specification ? specification->entry(destination) : nullptr;
        const auto registry = specification ? specification->registry() : nullptr;
        if (!found && registry)
            found = registry->entry(destination);
    }
    if (const auto owner = found ? found->specification() : nullptr) {
        showDetailView(destination, owner);
    } else if (const auto url = openableURL(destination)) {
        QDesktopServices::openUrl(*url);
    } else {
        qCWarning(interfaceLog).noquote()
            << "Don't know what to do with destination" << u"'%1'"_s.arg(destination);
    }
}

void SpecEntrySummaryViewController::showDetailView(
    const QString &label, const std::shared_ptr<Specification> &specification)
{
    // Whoever hears of it may put this view away, and the label with it.
    const auto display = [label, specification, pointer = m_manager] {
        if (auto *manager = pointer.get())
            manager->showDetailViewController(label, [&](const Specification &candidate) {
                return &candidate == specification.get();
            });
    };
    Q_EMIT detailViewRequested(label, specification);
    display();
}

} // namespace Tavrin
