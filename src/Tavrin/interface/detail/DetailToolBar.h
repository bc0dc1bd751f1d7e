// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QToolBar>

#include <Tavrin/interface/toolkit/DrawnIcon.h>

class QMenu;

namespace Tavrin
{

class HostPDFView;

/// The commands of a document's view, above it: where to go, how large, what to find.
///
/// What there is no room for moves into a menu at its end. The shortcuts hold within the whole
/// detail view. Main thread.
class DetailToolBar : public QToolBar
{
    Q_OBJECT

public:
    /// The shortcuts hold within `scope`. The view outlives the bar, or goes with it.
    DetailToolBar(HostPDFView &view, QWidget &scope, QWidget *parent = nullptr);

    /// Checked while the sidebar is shown; what it does is up to the detail view.
    QAction *sidebarAction() const { return m_sidebar; }

private:
    QAction *addCommand(IconShape icon, const QString &name, const QKeySequence &shortcut);
    void addNavigation();
    void addPageField();
    void addZoom();
    QMenu *makeZoomMenu();
    void addFind();
    void connectView();
    void updateHistory();
    void updateZoom();
    void updateDocument();

    HostPDFView &m_view;
    QWidget &m_scope;
    QAction *m_sidebar;
    QAction *m_back = nullptr;
    QAction *m_forward = nullptr;
    QAction *m_zoomOut = nullptr;
    QAction *m_zoomLevel = nullptr;
    QAction *m_zoomIn = nullptr;
    QAction *m_fitWidth = nullptr;
    QAction *m_fitPage = nullptr;
    QAction *m_find = nullptr;
    QAction *m_invert = nullptr;
};

} // namespace Tavrin
