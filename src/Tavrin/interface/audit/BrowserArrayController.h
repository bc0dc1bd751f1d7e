// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include <Tavrin/interface/audit/BrowserTable.h>

namespace Tavrin
{

/// The table model of the audit browser, in spite of its name: the rows that hold all words, in
/// order. It controls no view.
///
/// Each change resets the model; sourceRow() tells where a row comes from, so that a view can keep
/// its selection. Filtering and sorting compare texts that were folded beforehand, and typing on
/// looks only at the rows that are left.
class BrowserArrayController : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Replaces the rows; words and order stay.
    void setContent(std::vector<BrowserTable::Column> columns,
                    std::vector<BrowserSpecReferenceItem> items);
    const std::vector<BrowserSpecReferenceItem> &content() const { return m_content; }
    const std::vector<BrowserTable::Column> &columns() const { return m_columns; }

    /// Shows the rows that hold all words; without words all rows.
    void setFilterWords(const QString &text);

    /// By the column, equals in the order of the content; in that order alone for column -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    int sortColumn() const { return m_sortColumn; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }

    /// The row's item; null for a row that is not there.
    const BrowserSpecReferenceItem *arrangedItem(int row) const;
    /// Where the row stands in the content.
    int sourceRow(int row) const { return m_arranged[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void findMatches(const QStringList &words, bool narrows);
    void order();
    void arrange();

    std::vector<BrowserTable::Column> m_columns;
    std::vector<BrowserSpecReferenceItem> m_content;
    QStringList m_words;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    /// By position in the content: whether it holds the words.
    std::vector<bool> m_matches;
    /// Positions in the content: all, in order; and those that hold the words.
    std::vector<int> m_ordered;
    std::vector<int> m_arranged;
};

} // namespace Tavrin
