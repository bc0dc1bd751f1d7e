// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QMenu;

namespace Tavrin::Reader
{

class ReaderWindow;

/// Fills the menu bar of the reader's window. The menu "Document" holds the commands of the view
/// that is on show.
class ReaderMenus : public QObject
{
    Q_OBJECT

public:
    explicit ReaderMenus(ReaderWindow &window);

private:
    void addFileMenu();
    void addEditMenu();
    void addGoMenu();
    void addViewMenu();
    void addDocumentMenu();
    void addHelpMenu();
    QMenu &addMenu(const QString &title);

    ReaderWindow &m_window;
};

} // namespace Tavrin::Reader
