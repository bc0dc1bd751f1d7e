// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/TableView.h>

#include <QResizeEvent>
#include <QStyle>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Tavrin
{

TableView::Column *TableView::column(const QString &identifier)
{
    const int index = columnIndex(identifier);
    return index < 0 ? nullptr : &m_columns[std::size_t(index)];
}

int TableView::columnIndex(const QString &identifier) const
{
    const auto it = std::find_if(m_columns.begin(), m_columns.end(), [&](const Column &column) {
        return column.identifier == identifier;
    });
    return it == m_columns.end() ? -1 : int(it - m_columns.begin());
}

void TableView::registerCell(const QString &identifier, const CellMaker &maker)
{
    m_makers.insert(identifier, maker);
}

QWidget *TableView::makeView(const QString &identifier)
{
    const auto it = std::find_if(m_free.begin(), m_free.end(),
                                 [&](const Cell &cell) { return cell.identifier == identifier; });
    Cell cell{identifier};
    if (it != m_free.end()) {
        cell = *it;
        m_free.erase(it);
    } else if (const CellMaker maker = m_makers.value(identifier)) {
        cell.widget = maker().release();
        cell.widget->setParent(this);
        cell.widget->hide();
    }
    if (cell.widget)
        m_used.push_back(cell);
    return cell.widget;
}

void TableView::releaseCells()
{
    for (const std::vector<QWidget *> &row : m_cells) {
        for (const QWidget *widget : row) {
            const auto it = std::find_if(m_used.begin(), m_used.end(),
                                         [&](const Cell &cell) { return cell.widget == widget; });
            if (it == m_used.end())
                continue;
            m_free.push_back(*it);
            m_used.erase(it);
        }
    }
    m_cells.clear();
}

void TableView::reloadData()
{
    releaseCells();
    const int rows = m_source ? m_source->numberOfRows() : 0;
    for (int row = 0; row < rows; ++row) {
        std::vector<QWidget *> &cells = m_cells.emplace_back();
        for (const Column &column : m_columns) {
            QWidget *cell = m_source->tableViewCell(&column, row);
            cells.push_back(cell);
            if (cell)
                cell->show();
        }
    }
    for (const Cell &cell : m_free)
        cell.widget->hide();
    noteHeightOfRowsChanged();
}

void TableView::noteHeightOfRowsChanged()
{
    m_heights.clear();
    placeCells();
    Q_EMIT laidOut();
}

bool TableView::fitColumns(int width)
{
    if (m_columns.empty())
        return false;
    int left = width;
    for (std::size_t i = 0; i + 1 < m_columns.size(); ++i)
        left -= m_columns[i].width;
    Column &last = m_columns.back();
    const int fitted = std::clamp(left, last.minWidth, std::max(last.minWidth, last.maxWidth));
    return std::exchange(last.width, fitted) != fitted;
}

int TableView::heightForWidth(int width) const
{
    auto *self = const_cast<TableView *>(this);
    self->fitColumns(width);
    const std::vector<int> heights = rowHeights();
    self->fitColumns(this->width());
    return std::accumulate(heights.begin(), heights.end(), 0);
}

std::vector<int> TableView::rowHeights() const
{
    if (m_columns.empty())
        return {};
    const int width = m_columns.back().width;
    const auto known = m_heights.constFind(width);
    if (known != m_heights.cend())
        return *known;
    std::vector<int> heights;
    const int rows = m_source ? m_source->numberOfRows() : 0;
    heights.reserve(std::size_t(rows));
    for (int row = 0; row < rows; ++row)
        heights.push_back(m_source->tableViewRowHeight(row));
    // Measuring may widen the column; rows measured before that are measured again then.
    if (m_columns.back().width == width)
        m_heights.insert(width, heights);
    return heights;
}

void TableView::placeCells()
{
    int y = 0;
    const std::vector<int> heights = rowHeights();
    for (std::size_t row = 0; row < std::min(heights.size(), m_cells.size()); ++row) {
        const int height = heights[row];
        int x = 0;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const QRect place(x, y, m_columns[i].width, height);
            if (m_cells[row][i])
                m_cells[row][i]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
            x += m_columns[i].width;
        }
        y += height;
    }
    if (y != height())
        resize(width(), y);
}

void TableView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) {
        fitColumns(width());
        placeCells();
        Q_EMIT laidOut();
    }
}

} // namespace Tavrin
