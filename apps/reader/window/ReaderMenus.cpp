// SPDX-License-Identifier: Apache-2.0
#include <reader/window/ReaderMenus.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/TavrinVersion.h>
#include <reader/citing/AuditPresenter.h>
#include <reader/files/ReaderLibrary.h>
#include <reader/lookup/EntryPalette.h>
#include <reader/lookup/EntryPresenter.h>
#include <reader/lookup/LookupField.h>
#include <reader/lookup/RecentPlaces.h>
#include <reader/panes/ControllerPane.h>
#include <reader/window/ReaderShortcuts.h>
#include <reader/window/ReaderWindow.h>
#include <reader/window/ShortcutsWindow.h>
#include <reader/window/SidePane.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;
using Command = ReaderShortcuts::Command;

namespace
{

QKeySequence keys(Command command)
{
    return ReaderShortcuts::keys(command);
}

/// Does what the part with the focus does at a key. The key is told but not taken, since the parts
/// hear it themselves.
void addKey(QMenu &menu, const QString &title, QKeySequence::StandardKey standard)
{
    const QKeySequence key(standard);
    menu.addAction(title + u'\t' + key.toString(QKeySequence::NativeText), &menu, [key] {
        QKeyEvent press(QEvent::KeyPress, key[0].key(), key[0].keyboardModifiers());
        if (QWidget *focused = QApplication::focusWidget())
            QApplication::sendEvent(focused, &press);
    });
}

} // namespace

ReaderMenus::ReaderMenus(ReaderWindow &window) : QObject(&window), m_window(window)
{
    addFileMenu();
    addEditMenu();
    addGoMenu();
    addViewMenu();
    addDocumentMenu();
    addHelpMenu();
}

QMenu &ReaderMenus::addMenu(const QString &title)
{
    return *m_window.menuBar()->addMenu(title);
}

void ReaderMenus::addFileMenu()
{
    QMenu &menu = addMenu(localized("&File", "menu"));
    ReaderLibrary &library = m_window.library();
    menu.addAction(localized("Open &Maps…", "menu item"), keys(Command::OpenMaps), &library,
                   &ReaderLibrary::chooseMaps);
    menu.addAction(localized("&Import PDF…", "menu item"), keys(Command::ImportFiles), &library,
                   &ReaderLibrary::chooseFiles);
    menu.addAction(localized("&Specifications…", "menu item"), keys(Command::ShowFiles), &m_window,
                   [this] { m_window.manager().showAuxiliaryFileBrowser(); });
    menu.addSeparator();
    menu.addAction(localized("&New Citations", "menu item"), keys(Command::NewCitations), &m_window,
                   [this] { m_window.openCitations(); });
    menu.addAction(localized("Open &Citations…", "menu item"), &m_window,
                   &ReaderWindow::chooseCitations);
    menu.addAction(localized("&Audit References…", "menu item"), &m_window.audits(),
                   &AuditPresenter::chooseFile);
    menu.addSeparator();
    menu.addAction(localized("&Quit", "menu item"), keys(Command::Quit), &m_window,
                   &QWidget::close);
}

void ReaderMenus::addEditMenu()
{
    QMenu &menu = addMenu(localized("&Edit", "menu"));
    addKey(menu, localized("&Undo", "menu item"), QKeySequence::Undo);
    addKey(menu, localized("&Redo", "menu item"), QKeySequence::Redo);
    menu.addSeparator();
    addKey(menu, localized("C&opy", "menu item"), QKeySequence::Copy);
    menu.addAction(localized("&Copy Entry", "menu item"), keys(Command::CopyEntry), &m_window,
                   [this] {
                       if (const auto entry = m_window.presenter().shownEntry())
                           EntryClipboard::copy(*entry);
                   });
    addKey(menu, localized("Select &All", "menu item"), QKeySequence::SelectAll);
}

void ReaderMenus::addGoMenu()
{
    QMenu &menu = addMenu(localized("&Go", "menu"));
    menu.addAction(localized("&Look Up", "menu item"), keys(Command::LookUp), &m_window, [this] {
        m_window.lookupField().setFocus(Qt::ShortcutFocusReason);
        m_window.lookupField().selectAll();
    });
    menu.addAction(localized("Go to &Entry…", "menu item"), keys(Command::GoToEntry),
                   &m_window.entryPalette(), &EntryPalette::open);
    menu.addSeparator();
    menu.addAction(localized("&Next Part", "menu item"), keys(Command::NextPart), &m_window,
                   [this] { m_window.partFocus().next(); });
    menu.addAction(localized("&Previous Part", "menu item"), keys(Command::PreviousPart), &m_window,
                   [this] { m_window.partFocus().previous(); });
    menu.addSeparator();
    menu.addAction(localized("&Clear Recent Places", "menu item"), &m_window.sidePane().recent(),
                   &RecentPlaces::clear);
}

void ReaderMenus::addViewMenu()
{
    QMenu &menu = addMenu(localized("&View", "menu"));
    QAction *side = menu.addAction(localized("&Look-up Pane", "menu item"));
    side->setShortcut(keys(Command::SidePane));
    side->setCheckable(true);
    side->setChecked(true);
    connect(side, &QAction::toggled, &m_window.sidePane(), &QWidget::setVisible);
    QAction *full = menu.addAction(localized("&Full Screen", "menu item"));
    full->setShortcut(keys(Command::FullScreen));
    full->setCheckable(true);
    connect(full, &QAction::triggered, &m_window,
            [this] { m_window.setWindowState(m_window.windowState() ^ Qt::WindowFullScreen); });
    connect(&menu, &QMenu::aboutToShow, &m_window,
            [this, full] { full->setChecked(m_window.isFullScreen()); });
}

void ReaderMenus::addDocumentMenu()
{
    QMenu &menu = addMenu(localized("&Document", "menu"));
    connect(&m_window.detailPane(), &ControllerPane::shown, &menu, [&menu](const QWidget *view) {
        menu.clear();
        if (view)
            menu.addActions(view->actions());
        menu.setEnabled(!menu.isEmpty());
    });
    menu.setEnabled(false);
}

void ReaderMenus::addHelpMenu()
{
    QMenu &menu = addMenu(localized("&Help", "menu"));
    menu.addAction(localized("&Shortcuts", "menu item"), keys(Command::ShowShortcuts), &m_window,
                   [this] { (new ShortcutsWindow(*m_window.menuBar(), m_window))->show(); });
    menu.addAction(localized("&About Tavrin", "menu item"), &m_window, [this] {
        Sheet::showMessage(m_window, u"Tavrin %1"_s.arg(TavrinVersionString),
                           localized("Reads specifications that exist only as PDFs.", "about"));
    });
}

} // namespace Tavrin::Reader
