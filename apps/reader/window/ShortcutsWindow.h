// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

class QMenuBar;
class QTreeWidget;

namespace Tavrin::Reader
{

/// Lists the commands of a menu bar that have keys, menu by menu. Deletes itself when closed.
class ShortcutsWindow : public QDialog
{
    Q_OBJECT

public:
    ShortcutsWindow(const QMenuBar &menus, QWidget &owner);

    QTreeWidget &list() const { return *m_list; }

private:
    QTreeWidget *m_list;
};

} // namespace Tavrin::Reader
