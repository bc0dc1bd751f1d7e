// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/SearchFieldKeys.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace Tavrin
{

SearchFieldKeys::SearchFieldKeys(QLineEdit &field, QAbstractItemView &list)
    : QObject(&field), m_field(field), m_list(list)
{
    field.installEventFilter(this);
}

bool SearchFieldKeys::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::KeyPress && handle(static_cast<QKeyEvent &>(*event))) ||
           QObject::eventFilter(watched, event);
}

bool SearchFieldKeys::handle(QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy)) {
        if (m_field.hasSelectedText())
            return false;
        Q_EMIT copyWanted();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(&m_list, &event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT chosen();
        return true;
    case Qt::Key_Escape:
        // What lies around may want the key where there is nothing to clear.
        if (m_field.text().isEmpty())
            return false;
        m_field.clear();
        return true;
    default:
        return false;
    }
}

} // namespace Tavrin
