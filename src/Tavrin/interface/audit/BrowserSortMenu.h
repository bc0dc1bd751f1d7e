// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMenu>

class QTableView;

namespace Tavrin
{

class BrowserArrayController;

/// The orders of a table as a menu, for those who work without a mouse: an item a column, which
/// turns the order round when it is chosen again, and the order in which the rows came.
class BrowserSortMenu : public QMenu
{
    Q_OBJECT

public:
    BrowserSortMenu(QTableView &table, const BrowserArrayController &rows, QWidget *parent);
};

} // namespace Tavrin
