// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/SuggestionDelegate.h>

#include <QApplication>
#include <QPainter>

#include <reader/lookup/SuggestionModel.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int margin = 6;
constexpr double smallScale = 0.87;

QFont smallFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * smallScale);
    return font;
}

} // namespace

void SuggestionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString title = item.text;
    item.text.clear();
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const QColor color =
        item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    QColor faint = color;
    faint.setAlphaF(0.7F);
    const QRect inside = item.rect.adjusted(margin, margin / 2, -margin, -margin / 2);
    const int alignment =
        static_cast<int>(QStyle::visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignTop));

    painter->save();
    painter->setFont(item.font);
    painter->setPen(color);
    painter->drawText(inside, alignment,
                      item.fontMetrics.elidedText(title, Qt::ElideRight, inside.width()));
    const QFont small = smallFont(item.font);
    const QFontMetrics metrics(small);
    const QString below =
        u"%1  ·  %2"_s.arg(index.data(SuggestionModel::SpecificationRole).toString(),
                           index.data(SuggestionModel::ReasonRole).toString());
    painter->setFont(small);
    painter->setPen(faint);
    painter->drawText(inside.adjusted(0, item.fontMetrics.height(), 0, 0), alignment,
                      metrics.elidedText(below, Qt::ElideRight, inside.width()));
    painter->restore();
}

QSize SuggestionDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const QFontMetrics small(smallFont(option.font));
    return {0, QFontMetrics(option.font).height() + small.height() + margin};
}

} // namespace Tavrin::Reader
