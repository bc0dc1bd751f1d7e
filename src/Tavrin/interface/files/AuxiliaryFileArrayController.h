// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractTableModel>

#include <functional>
#include <vector>

#include <Tavrin/interface/files/AuxiliaryFile.h>

namespace Tavrin
{

/// The rows of the table of imported files, in the order of the specifications, then of the files.
class AuxiliaryFileArrayController : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, StatusColumn, ViewColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    const std::vector<AuxiliaryFilePtr> &arrangedObjects() const { return m_rows; }
    /// Null if there is none.
    AuxiliaryFilePtr row(int index) const;
    /// Resets the model.
    void rearrange(std::vector<AuxiliaryFilePtr> rows);

    /// Says which rows can be selected; all can at first.
    void setSelectability(std::function<bool(int row)> shouldSelect);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    std::vector<AuxiliaryFilePtr> m_rows;
    std::function<bool(int row)> m_shouldSelect;
};

} // namespace Tavrin
