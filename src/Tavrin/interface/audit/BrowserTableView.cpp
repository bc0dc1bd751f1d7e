// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserTableView.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

#include <algorithm>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/BrowserCellDelegate.h>
#include <Tavrin/interface/audit/BrowserTextViewCell.h>

namespace Tavrin
{

namespace
{

constexpr int leastColumnWidth = 100;
constexpr int mostColumnWidth = 700;
constexpr int emptyTextMargin = 24;

} // namespace

BrowserTableView::BrowserTableView(QWidget *parent)
    : QTableView(parent), m_emptyLabel(new QLabel(viewport()))
{
    setItemDelegate(new BrowserCellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(leastColumnWidth);
    horizontalHeader()->setMaximumSectionSize(mostColumnWidth);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setTextFormat(Qt::PlainText);
    m_emptyLabel->setForegroundRole(QPalette::PlaceholderText);
    m_emptyLabel->hide();
    connect(this, &QTableView::doubleClicked, this, &BrowserTableView::rowOpened);
    updateRowHeight();
}

BrowserTableView::~BrowserTableView() = default;

void BrowserTableView::setRows(BrowserArrayController *rows)
{
    m_rows = rows;
    // Before the view itself hears of it, and after.
    connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, &BrowserTableView::saveSelection);
    setModel(rows);
    connect(rows, &QAbstractItemModel::modelReset, this, &BrowserTableView::restoreSelection);
}

std::vector<int> BrowserTableView::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void BrowserTableView::setEmptyText(const QString &text)
{
    m_emptyLabel->setText(text);
    placeEmptyText();
}

// Keeping the selection

void BrowserTableView::saveSelection()
{
    m_keptSelection.clear();
    for (const int row : selectedRows())
        m_keptSelection.push_back(m_rows->sourceRow(row));
    std::sort(m_keptSelection.begin(), m_keptSelection.end());
    m_keptCurrent = currentIndex().isValid() ? m_rows->sourceRow(currentIndex().row()) : -1;
    m_keptColumn = currentIndex().column();
    releaseCells();
}

void BrowserTableView::restoreSelection()
{
    QItemSelection selection;
    QModelIndex current;
    const int lastColumn = m_rows->columnCount() - 1;
    const auto isKept = [this](int row) {
        return std::binary_search(m_keptSelection.begin(), m_keptSelection.end(),
                                  m_rows->sourceRow(row));
    };
    const int count = lastColumn < 0 ? 0 : m_rows->rowCount();
    for (int row = 0; row < count; ++row) {
        if (m_rows->sourceRow(row) == m_keptCurrent)
            current = m_rows->index(row, std::min(m_keptColumn, lastColumn));
        if (!isKept(row))
            continue;
        const int first = row;
        while (row + 1 < count && isKept(row + 1)) {
            ++row;
            if (m_rows->sourceRow(row) == m_keptCurrent)
                current = m_rows->index(row, std::min(m_keptColumn, lastColumn));
        }
        selection.append({m_rows->index(first, 0), m_rows->index(row, lastColumn)});
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (current.isValid())
        scrollTo(current);
    placeEmptyText();
}

void BrowserTableView::setClicked(const QModelIndex &index)
{
    m_clicked = index;
    Q_EMIT choiceChanged();
}

void BrowserTableView::selectionChanged(const QItemSelection &selected,
                                        const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    placeCells();
    Q_EMIT choiceChanged();
}

void BrowserTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    setClicked(current);
    placeCells();
}

// Events

QKeySequence BrowserTableView::copyCellKeys()
{
    return Qt::CTRL | Qt::SHIFT | Qt::Key_C;
}

bool BrowserTableView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = static_cast<QKeyEvent &>(*event);
        if (key.matches(QKeySequence::Copy) || copyCellKeys() == key.keyCombination()) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void BrowserTableView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
        return;
    }
    if (copyCellKeys() == event->keyCombination()) {
        Q_EMIT cellCopyRequested();
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentIndex().isValid()) {
        setClicked(currentIndex());
        Q_EMIT rowOpened();
        return;
    }
    const auto cell = m_cells.find({currentIndex().row(), currentIndex().column()});
    const bool isAcross = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (event->modifiers() == Qt::AltModifier && isAcross && cell != m_cells.end()) {
        cell->second->scrollBy(event->key() == Qt::Key_Down ? 1 : -1);
        return;
    }
    QTableView::keyPressEvent(event);
}

void BrowserTableView::mousePressEvent(QMouseEvent *event)
{
    const QPersistentModelIndex clicked = indexAt(event->position().toPoint());
    QTableView::mousePressEvent(event);
    setClicked(clicked);
}

void BrowserTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    placeCells();
    placeEmptyText();
}

void BrowserTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateRowHeight();
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ActivationChange)
        placeCells();
}

void BrowserTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    placeCells();
}

void BrowserTableView::updateGeometries()
{
    QTableView::updateGeometries();
    placeCells();
}

void BrowserTableView::updateRowHeight()
{
    // And the line of the grid.
    verticalHeader()->setDefaultSectionSize(BrowserCellDelegate::lines *
                                                fontMetrics().lineSpacing() +
                                            2 * BrowserCellDelegate::margin + 1);
}

// Cells with a view

std::vector<QModelIndex> BrowserTableView::visibleLongCells() const
{
    std::vector<QModelIndex> result;
    const int first = rowAt(0);
    if (!m_rows || first < 0)
        return result;
    const int below = rowAt(viewport()->height() - 1);
    const int last = below < 0 ? m_rows->rowCount() - 1 : below;
    for (int column = 0; column < m_rows->columnCount(); ++column) {
        const int x = columnViewportPosition(column);
        if (x + columnWidth(column) <= 0 || x >= viewport()->width())
            continue;
        for (int row = first; row <= last; ++row) {
            const QModelIndex index = m_rows->index(row, column);
            if (BrowserCellDelegate::isScrolling(index))
                result.push_back(index);
        }
    }
    return result;
}

void BrowserTableView::placeCells()
{
    // Asking for places may lay the table out, which comes back here.
    if (m_isPlacing)
        return;
    const QScopedValueRollback placing(m_isPlacing, true);
    const std::vector<QModelIndex> visible = visibleLongCells();
    std::map<Place, BrowserTextViewCell *> cells;
    for (const QModelIndex &index : visible) {
        if (auto node = m_cells.extract({index.row(), index.column()}))
            cells.insert(std::move(node));
    }
    releaseCells();
    for (const QModelIndex &index : visible) {
        BrowserTextViewCell *&cell = cells[{index.row(), index.column()}];
        if (!cell)
            cell = freeCell(m_rows->arrangedItem(index.row())->value(index.column()));
        cell->setGeometry(visualRect(index));
        updateAppearance(*cell, index);
        cell->show();
    }
    m_cells = std::move(cells);
}

BrowserTextViewCell *BrowserTableView::freeCell(const QString &text)
{
    // Most rows that are left stood elsewhere before, and need not be laid out again.
    auto it = std::find_if(m_freeCells.begin(), m_freeCells.end(),
                           [&text](const auto *cell) { return cell->text() == text; });
    if (it == m_freeCells.end() && !m_freeCells.empty())
        it = std::prev(m_freeCells.end());
    BrowserTextViewCell *cell = nullptr;
    if (it == m_freeCells.end()) {
        cell = new BrowserTextViewCell(viewport());
    } else {
        cell = *it;
        m_freeCells.erase(it);
    }
    cell->setText(text);
    return cell;
}

void BrowserTableView::updateAppearance(BrowserTextViewCell &cell, const QModelIndex &index) const
{
    const auto group = isActiveWindow() ? QPalette::Active : QPalette::Inactive;
    const auto role =
        selectionModel()->isSelected(index) ? QPalette::HighlightedText : QPalette::Text;
    cell.setAppearance(palette().color(group, role), index == currentIndex());
}

void BrowserTableView::releaseCells()
{
    for (const auto &[place, cell] : m_cells) {
        cell->hide();
        m_freeCells.push_back(cell);
    }
    m_cells.clear();
}

void BrowserTableView::placeEmptyText()
{
    const bool isEmpty = !m_rows || m_rows->rowCount() == 0;
    m_emptyLabel->setGeometry(viewport()->rect().adjusted(emptyTextMargin, emptyTextMargin,
                                                          -emptyTextMargin, -emptyTextMargin));
    m_emptyLabel->setVisible(isEmpty && !m_emptyLabel->text().isEmpty());
}

} // namespace Tavrin
