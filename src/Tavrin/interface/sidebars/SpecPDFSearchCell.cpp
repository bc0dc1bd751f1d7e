// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFSearchCell.h>

#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>

#include <QEvent>

#include "ui_SpecPDFSearchCell.h"

namespace Tavrin
{

SpecPDFSearchCell::SpecPDFSearchCell(QWidget *parent) : TableCellView(parent)
{
    Ui::SpecPDFSearchCell form;
    form.setupUi(this);
    m_titleLabel = form.titleLabel;
    m_indexLabel = form.indexLabel;
    m_descriptionLabel = form.descriptionLabel;
    setTextField(m_titleLabel);
    updateColors();
}

void SpecPDFSearchCell::show(const SpecPDFSearchResult &result, const QStringList &words)
{
    m_titleLabel->setText(result.titleText().simplified());
    m_titleLabel->setMarkedWords(words);
    m_indexLabel->setText(result.indexText());
    m_descriptionLabel->setText(result.descriptionText());
}

void SpecPDFSearchCell::setBackgroundStyle(BackgroundStyle style)
{
    if (style == m_backgroundStyle)
        return;
    m_backgroundStyle = style;
    updateColors();
}

void SpecPDFSearchCell::changeEvent(QEvent *event)
{
    TableCellView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}

void SpecPDFSearchCell::updateColors()
{
    const bool isLight = m_backgroundStyle == BackgroundStyle::Light;
    const QColor dim = isLight ? QColor(Qt::darkGray) : QColor(Qt::white);
    const auto setColor = [](QWidget &label, const QColor &color) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, color);
        label.setPalette(palette);
    };
    setColor(*m_titleLabel, isLight ? palette().color(QPalette::Text) : dim);
    setColor(*m_indexLabel, dim);
    setColor(*m_descriptionLabel, dim);
}

} // namespace Tavrin
