// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

#include <Tavrin/interface/files/AuxiliaryFile.h>

namespace Tavrin
{

/// Draws the cells of the table of imported files, of one row after the other: name and status,
/// gray where the row can't be selected, the name with the icon of the file's type.
class AuxiliaryFileTableCellView : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The name of a row, with a note on the primary specification; empty without a row.
    static QString fileName(const AuxiliaryFile *row);
    /// As the platform draws the type of the row's first file.
    QIcon fileIcon(const AuxiliaryFile &row) const;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    /// By extension.
    mutable QHash<QString, QIcon> m_icons;
};

} // namespace Tavrin
