// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserCellDelegate.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/SpecBrowserTextColorTransformer.h>
#include <Tavrin/interface/audit/WrappedText.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// In characters; a value of so many is no longer read at a glance.
constexpr qsizetype scrollingLength = 751;

const BrowserSpecReferenceItem *itemOf(const QModelIndex &index)
{
    const auto *rows = qobject_cast<const BrowserArrayController *>(index.model());
    return rows ? rows->arrangedItem(index.row()) : nullptr;
}

} // namespace

bool BrowserCellDelegate::isScrolling(const QModelIndex &index)
{
    const auto *item = itemOf(index);
    return item && item->cell(index.column()).characterCount >= scrollingLength;
}

QString BrowserCellDelegate::cellIdentifier(const QModelIndex &index)
{
    return isScrolling(index) ? u"ScrollingCell"_s : u"Cell"_s;
}

WrappedText BrowserCellDelegate::wrapped(const QStyleOptionViewItem &option,
                                         const QModelIndex &index)
{
    return WrappedText(index.data(Qt::DisplayRole).toString(), option.font,
                       option.rect.width() - 2 * margin, lines);
}

void BrowserCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    QStyleOptionViewItem shown(option);
    initStyleOption(&shown, index);
    shown.text.clear();
    const QStyle *style = shown.widget ? shown.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);
    const auto *item = itemOf(index);
    if (!item || isScrolling(index))
        return;
    const bool isSelected = shown.state.testFlag(QStyle::State_Selected);
    const bool isActive = shown.state.testFlag(QStyle::State_Active);
    shown.palette.setCurrentColorGroup(isActive ? QPalette::Active : QPalette::Inactive);
    painter->save();
    painter->setClipRect(shown.rect);
    painter->setPen(isSelected ? shown.palette.color(QPalette::HighlightedText)
                               : SpecBrowserTextColorTransformer::transformedValue(
                                     item->value(index.column()), shown.palette));
    wrapped(shown, index).draw(*painter, shown.rect.topLeft() + QPoint(margin, margin));
    painter->restore();
}

bool BrowserCellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QString text = index.data(Qt::ToolTipRole).toString();
    if (text.isEmpty() && !isScrolling(index)) {
        QStyleOptionViewItem shown(option);
        initStyleOption(&shown, index);
        if (wrapped(shown, index).isCut())
            text = index.data(Qt::DisplayRole).toString();
    }
    // Titles may look like rich text.
    QToolTip::showText(event->globalPos(), text.isEmpty() ? text : Qt::convertFromPlainText(text),
                       view);
    return true;
}

} // namespace Tavrin
