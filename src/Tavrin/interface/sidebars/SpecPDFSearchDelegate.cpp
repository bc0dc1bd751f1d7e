// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFSearchDelegate.h>

#include <Tavrin/interface/sidebars/SpecPDFSearchCell.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchModel.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>

#include <QPainter>

namespace Tavrin
{

namespace
{

using BackgroundStyle = SpecPDFSearchCell::BackgroundStyle;

BackgroundStyle backgroundStyle(const QStyleOptionViewItem &option)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    // Some palettes select in a pale colour, with dark text.
    const bool isPale = option.palette.color(QPalette::HighlightedText).lightnessF() < 0.5F;
    return isSelected && !isPale ? BackgroundStyle::Dark : BackgroundStyle::Light;
}

} // namespace

SpecPDFSearchDelegate::SpecPDFSearchDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_cell(std::make_unique<SpecPDFSearchCell>())
{
}

SpecPDFSearchDelegate::~SpecPDFSearchDelegate() = default;

void SpecPDFSearchDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const auto *model = dynamic_cast<const SpecPDFSearchModel *>(index.model());
    const auto result = model ? model->result(index) : nullptr;
    if (!result)
        return;
    const QStyle &style = *option.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    m_cell->setFont(option.font);
    m_cell->setPalette(option.palette);
    m_cell->setLayoutDirection(option.direction);
    m_cell->setBackgroundStyle(backgroundStyle(option));
    m_cell->show(*result, m_markedWords);
    m_cell->resize(option.rect.size());
    painter->save();
    painter->translate(option.rect.topLeft());
    m_cell->render(painter, {}, {}, QWidget::DrawChildren);
    painter->restore();
    Q_EMIT rowShown(index);
}

QSize SpecPDFSearchDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    m_cell->setFont(option.font);
    return {0, m_cell->sizeHint().height()};
}

} // namespace Tavrin
