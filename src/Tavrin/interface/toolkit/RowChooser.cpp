// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/RowChooser.h>

#include <QAbstractItemView>
#include <QEvent>

namespace Tavrin
{

RowChooser::RowChooser(QAbstractItemView &list) : QObject(&list)
{
    list.viewport()->installEventFilter(this);
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &selected) {
                if (selected.isEmpty())
                    return;
                m_hasPressChosen = true;
                Q_EMIT chosen(selected.indexes().front());
            });
    connect(&list, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        if (!m_hasPressChosen)
            Q_EMIT chosen(index);
    });
    connect(&list, &QAbstractItemView::activated, this, &RowChooser::chosen);
}

bool RowChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_hasPressChosen = false;
    return QObject::eventFilter(watched, event);
}

} // namespace Tavrin
