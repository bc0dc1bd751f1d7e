// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserSortMenu.h>

#include <QHeaderView>
#include <QTableView>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

namespace
{

QString headingOf(const BrowserArrayController &rows, int column)
{
    // An ampersand would underline what stands behind it.
    QString heading = rows.columns()[std::size_t(column)].heading;
    heading.replace(u'&', QStringLiteral("&&"));
    return heading.isEmpty() ? localized("Column %1", "spec audit menu item").arg(column + 1)
                             : heading;
}

} // namespace

BrowserSortMenu::BrowserSortMenu(QTableView &table, const BrowserArrayController &rows,
                                 QWidget *parent)
    : QMenu(localized("Sort By", "spec audit menu item"), parent)
{
    const auto add = [this, &table](const QString &text, int column, Qt::SortOrder order) {
        QAction *action = addAction(text);
        action->setCheckable(true);
        connect(action, &QAction::triggered, &table, [&table, column, order] {
            table.horizontalHeader()->setSortIndicator(column, order);
        });
        return action;
    };
    for (int column = 0; column < rows.columnCount(); ++column) {
        const bool isSorted = rows.sortColumn() == column;
        const bool turns = isSorted && rows.sortOrder() == Qt::AscendingOrder;
        add(headingOf(rows, column), column, turns ? Qt::DescendingOrder : Qt::AscendingOrder)
            ->setChecked(isSorted);
    }
    addSeparator();
    add(localized("Original Order", "spec audit menu item"), -1, Qt::AscendingOrder)
        ->setChecked(rows.sortColumn() < 0);
}

} // namespace Tavrin
