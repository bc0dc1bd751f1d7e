// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFileArrayController.h>

#include <Tavrin/interface/files/AuxiliaryFileTableCellView.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <utility>

namespace Tavrin
{

AuxiliaryFilePtr AuxiliaryFileArrayController::row(int index) const
{
    return index >= 0 && index < rowCount() ? m_rows[std::size_t(index)] : nullptr;
}

void AuxiliaryFileArrayController::rearrange(std::vector<AuxiliaryFilePtr> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void AuxiliaryFileArrayController::setSelectability(std::function<bool(int)> shouldSelect)
{
    m_shouldSelect = std::move(shouldSelect);
}

int AuxiliaryFileArrayController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AuxiliaryFileArrayController::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AuxiliaryFileArrayController::data(const QModelIndex &index, int role) const
{
    const AuxiliaryFilePtr file = row(index.row());
    if (!file || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    switch (index.column()) {
    case NameColumn:
        return AuxiliaryFileTableCellView::fileName(file.get());
    case StatusColumn:
        return file->matchStatus();
    default:
        return {};
    }
}

QVariant AuxiliaryFileArrayController::headerData(int section, Qt::Orientation orientation,
                                                  int role) const
{
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return localized("Specification", "column of the imported files");
    case StatusColumn:
        return localized("Status", "column of the imported files");
    default:
        return {};
    }
}

Qt::ItemFlags AuxiliaryFileArrayController::flags(const QModelIndex &index) const
{
    if (!row(index.row()))
        return Qt::NoItemFlags;
    // What can't be selected can still be read out, and opened for the prompt to import.
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (!m_shouldSelect || m_shouldSelect(index.row()))
        flags |= Qt::ItemIsSelectable;
    return flags;
}

} // namespace Tavrin
