// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/TableScrollView.h>

#include <Tavrin/interface/toolkit/TableView.h>

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace Tavrin
{

TableScrollView::TableScrollView(QWidget *parent) : QScrollArea(parent), m_table(new TableView)
{
    setWidget(m_table);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    // The surface behind is whatever the view lies on.
    viewport()->setAutoFillBackground(false);
    m_table->setAutoFillBackground(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_table, &TableView::laidOut, this, [this] {
        if (isVisible())
            fit();
    });
}

void TableScrollView::setWidthConstraint(int width)
{
    m_widthConstraint = width;
    updateGeometry();
}

void TableScrollView::setHeightConstraint(int height)
{
    m_heightConstraint = height;
    updateGeometry();
}

QSize TableScrollView::sizeHint() const
{
    return {m_widthConstraint, m_heightConstraint};
}

int TableScrollView::heightForWidth(int width) const
{
    return width == m_table->width()
               ? m_heightConstraint
               : std::max(m_table->heightForWidth(width), fontMetrics().height());
}

QSize TableScrollView::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void TableScrollView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

/// Whether there is a scroll bar is decided by the width without one. Else a bar that makes the
/// rows narrower, and so taller, would be what makes itself needed.
void TableScrollView::fit()
{
    const QSize whole = contentsRect().size();
    const int height = whole.width() == m_table->width() ? m_table->height()
                                                         : m_table->heightForWidth(whole.width());
    const auto policy = height <= whole.height() ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn;
    if (policy != verticalScrollBarPolicy())
        setVerticalScrollBarPolicy(policy);
    m_table->resize(viewport()->width(), m_table->height());
}

void TableScrollView::keyPressEvent(QKeyEvent *event)
{
    QScrollBar *bar = verticalScrollBar();
    if (event->key() == Qt::Key_Home)
        bar->triggerAction(QAbstractSlider::SliderToMinimum);
    else if (event->key() == Qt::Key_End)
        bar->triggerAction(QAbstractSlider::SliderToMaximum);
    else if (event->key() == Qt::Key_Space)
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    else
        QScrollArea::keyPressEvent(event);
}

} // namespace Tavrin
