// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace Tavrin
{

class WrappedText;

/// Paints the cells of the audit browser: wrapped text from the top, cut off with an ellipsis where
/// the row ends. Of cells that are views of their own it paints what lies behind. What is cut off
/// can be read in a tool tip.
class BrowserCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// So many lines are shown of each cell.
    static constexpr int lines = 4;
    /// In pixels, on each side of a cell's text.
    static constexpr int margin = 5;

    /// Whether a cell is a view of its own, by the number of its characters.
    static bool isScrolling(const QModelIndex &index);
    /// "Cell" or "ScrollingCell".
    static QString cellIdentifier(const QModelIndex &index);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    static WrappedText wrapped(const QStyleOptionViewItem &option, const QModelIndex &index);
};

} // namespace Tavrin
