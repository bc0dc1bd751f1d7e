// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <map>
#include <memory>
#include <vector>

class QLabel;

namespace Tavrin
{

class BrowserArrayController;
class BrowserTextViewCell;

/// The table of the audit browser. Only long values that can be seen have a view; they are moved
/// on as the table scrolls. The selection lasts while rows are filtered and sorted.
///
/// Return and a double click open the row. Alt+Up and Alt+Down scroll a long value that is current.
/// The keys for copying are the table's while it has the focus, whatever the host's menus say.
class BrowserTableView : public QTableView
{
    Q_OBJECT

public:
    explicit BrowserTableView(QWidget *parent = nullptr);
    ~BrowserTableView() override;

    void setRows(BrowserArrayController *rows);

    /// Those of copy() are the platform's.
    static QKeySequence copyCellKeys();

    /// What was clicked last, with whatever button, or reached by keys; invalid if that was none.
    QModelIndex clickedIndex() const { return m_clicked; }
    /// From top to bottom.
    std::vector<int> selectedRows() const;

    /// What is said in place of rows, where there are none.
    void setEmptyText(const QString &text);

Q_SIGNALS:
    /// The clicked row was opened.
    void rowOpened();
    void copyRequested();
    void cellCopyRequested();
    /// What is selected or clicked is another.
    void choiceChanged();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

protected Q_SLOTS:
    void updateGeometries() override;

private:
    using Place = std::pair<int, int>;

    void saveSelection();
    void restoreSelection();
    void setClicked(const QModelIndex &index);
    void updateRowHeight();
    std::vector<QModelIndex> visibleLongCells() const;
    void placeCells();
    /// A cell with the text, made if none is free.
    BrowserTextViewCell *freeCell(const QString &text);
    void updateAppearance(BrowserTextViewCell &cell, const QModelIndex &index) const;
    void releaseCells();
    void placeEmptyText();

    BrowserArrayController *m_rows = nullptr;
    QPersistentModelIndex m_clicked;
    QLabel *m_emptyLabel;
    /// In use, by row and column; and free. All are children of the viewport.
    std::map<Place, BrowserTextViewCell *> m_cells;
    std::vector<BrowserTextViewCell *> m_freeCells;
    bool m_isPlacing = false;
    /// Positions in the content, while the rows are arranged anew.
    std::vector<int> m_keptSelection;
    int m_keptCurrent = -1;
    int m_keptColumn = 0;
};

} // namespace Tavrin
