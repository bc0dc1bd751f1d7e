// SPDX-License-Identifier: Apache-2.0
#include <reader/window/ShortcutsWindow.h>

#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize firstSize(460, 560);

/// Without the marks of its mnemonic, and without keys that are part of it.
QString nameOf(const QAction &action)
{
    return action.text().section(u'\t', 0, 0).remove(u'&');
}

QString keysOf(const QAction &action)
{
    const QString keys = QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText);
    return keys.isEmpty() ? action.text().section(u'\t', 1) : keys;
}

} // namespace

ShortcutsWindow::ShortcutsWindow(const QMenuBar &menus, QWidget &owner)
    : QDialog(&owner), m_list(new QTreeWidget)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(localized("Shortcuts", "title of a window"));
    const QString command = localized("Command", "column of a list");
    const QString keys = localized("Keys", "column of a list");
    m_list->setHeaderLabels({command, keys});
    m_list->setAccessibleName(windowTitle());
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    const QList<QAction *> shown = menus.actions();
    for (const QAction *menu : shown) {
        QList<QTreeWidgetItem *> rows;
        const QList<QAction *> commands = menu->menu()->actions();
        for (const QAction *action : commands) {
            if (!keysOf(*action).isEmpty())
                rows += new QTreeWidgetItem(QStringList{nameOf(*action), keysOf(*action)});
        }
        if (rows.isEmpty())
            continue;
        auto *group = new QTreeWidgetItem(m_list, QStringList{nameOf(*menu)});
        group->addChildren(rows);
        group->setExpanded(true);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(firstSize);
}

} // namespace Tavrin::Reader
