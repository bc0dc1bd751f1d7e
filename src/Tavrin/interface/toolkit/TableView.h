// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

#include <Tavrin/WidgetsExport.h>

namespace Tavrin
{

/// A table whose cells are widgets, taken from a source by row and column, with rows as tall as the
/// source says.
///
/// It lies in a TableScrollView, which gives it its width. The first column keeps its width; the
/// last takes what is left, between its bounds.
class TAVRIN_WIDGETS_EXPORT TableView : public QWidget
{
    Q_OBJECT

public:
    /// What a column is called and how wide it may be.
    struct Column {
        QString identifier;
        /// In pixels.
        int width = 0;
        int minWidth = 0;
        int maxWidth = QWIDGETSIZE_MAX;
    };

    /// Where rows come from. Asked on each reload and each layout; nothing is remembered but the
    /// widgets.
    class Source
    {
    public:
        virtual ~Source() = default;
        /// Asked often, so it should be quick.
        virtual int numberOfRows() const = 0;
        /// A cell made by makeView(), filled; null leaves the place empty.
        virtual QWidget *tableViewCell(const Column *column, int row) = 0;
        /// In pixels, at the present widths of the columns.
        virtual int tableViewRowHeight(int row) = 0;
    };

    using QWidget::QWidget;

    /// The source must outlive the table, or be taken away.
    void setSource(Source *source) { m_source = source; }
    /// Behind the others, before the first reload.
    void addColumn(const Column &column) { m_columns.push_back(column); }
    /// Null if there is none of that name. Valid until a column is added.
    Column *column(const QString &identifier);
    /// -1 if there is none of that name.
    int columnIndex(const QString &identifier) const;

    using CellMaker = std::function<std::unique_ptr<QWidget>()>;
    /// How makeView() makes a cell of this name.
    void registerCell(const QString &identifier, const CellMaker &maker);
    /// A cell that a reload has set free, or a new one; a child of this table, hidden. Null for an
    /// identifier that is not registered.
    QWidget *makeView(const QString &identifier);

    /// Asks for all cells again.
    void reloadData();
    /// Asks for all heights again.
    void noteHeightOfRowsChanged();
    /// Gives the last column what the others leave of a width; true if that changed anything.
    bool fitColumns(int width);
    /// How tall the rows are together at a width.
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The rows have new places, and perhaps another height together.
    void laidOut();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Cell {
        QString identifier;
        QWidget *widget = nullptr;
    };

    void releaseCells();
    /// Measured once for each width of the last column.
    std::vector<int> rowHeights() const;
    void placeCells();

    Source *m_source = nullptr;
    std::vector<Column> m_columns;
    QHash<QString, CellMaker> m_makers;
    std::vector<Cell> m_free;
    /// What was made since the last reload.
    std::vector<Cell> m_used;
    /// By row, then column.
    std::vector<std::vector<QWidget *>> m_cells;
    mutable QHash<int, std::vector<int>> m_heights;
};

} // namespace Tavrin
