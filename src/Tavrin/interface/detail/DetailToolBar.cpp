// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/DetailToolBar.h>

#include <Tavrin/interface/detail/PageField.h>
#include <Tavrin/interface/pdfview/HostPDFView.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QLocale>
#include <QMenu>
#include <QToolButton>

namespace Tavrin
{

namespace
{

constexpr QSize smallIcons(16, 16);
constexpr int zoomLevels[] = {50, 75, 100, 125, 150, 200, 300, 400};

QString percent(int value)
{
    return localized("%1 %", "Zoom level").arg(QLocale().toString(value));
}

} // namespace

DetailToolBar::DetailToolBar(HostPDFView &view, QWidget &scope, QWidget *parent)
    : QToolBar(parent), m_view(view), m_scope(scope)
{
    setAccessibleName(localized("Document commands", "Accessible name of the tool bar"));
    setIconSize(smallIcons);
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    m_sidebar = addCommand(IconShape::Sidebar, localized("Sidebar", "Tool bar of the detail view"),
                           Qt::Key_F9);
    m_sidebar->setCheckable(true);
    m_sidebar->setChecked(true);
    addSeparator();
    addNavigation();
    addSeparator();
    addZoom();
    addSeparator();
    addFind();
    connectView();
    updateHistory();
    updateZoom();
    updateDocument();
    for (QAction *action : actions()) {
        if (auto *button = qobject_cast<QToolButton *>(widgetForAction(action)))
            button->setFocusPolicy(Qt::TabFocus);
    }
}

QAction *DetailToolBar::addCommand(IconShape icon, const QString &name,
                                   const QKeySequence &shortcut)
{
    QAction *action = addAction(drawnIcon(icon), name);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setToolTip(localized("%1 (%2)", "Tool tip: a command and its shortcut")
                           .arg(name, action->shortcut().toString(QKeySequence::NativeText)));
    m_scope.addAction(action);
    return action;
}

void DetailToolBar::addNavigation()
{
    m_back = addCommand(IconShape::Back, localized("Back", "Tool bar of the detail view"),
                        QKeySequence::Back);
    m_forward = addCommand(IconShape::Forward, localized("Forward", "Tool bar of the detail view"),
                           QKeySequence::Forward);
    connect(m_back, &QAction::triggered, &m_view, &HostPDFView::goBack);
    connect(m_forward, &QAction::triggered, &m_view, &HostPDFView::goForward);
    addSeparator();
    addPageField();
}

void DetailToolBar::addPageField()
{
    auto *field = new PageFieldAction(m_view, this);
    addAction(field);
    // The field itself takes no shortcut.
    auto *goToPage = new QAction(field->text(), this);
    goToPage->setShortcut(QKeyCombination(Qt::CTRL, Qt::Key_L));
    goToPage->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_scope.addAction(goToPage);
    connect(goToPage, &QAction::triggered, this, [this, field] {
        auto *shown = qobject_cast<PageField *>(widgetForAction(field));
        if (shown && shown->isVisible())
            shown->edit();
        else if (auto *more = findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button")))
            more->showMenu();
    });
}

void DetailToolBar::addZoom()
{
    m_zoomOut = addCommand(IconShape::ZoomOut, localized("Zoom Out", "Tool bar of the detail view"),
                           QKeySequence::ZoomOut);
    m_zoomLevel = addAction(percent(100));
    m_zoomIn = addCommand(IconShape::ZoomIn, localized("Zoom In", "Tool bar of the detail view"),
                          QKeySequence::ZoomIn);
    // The plus sign shares its key with others on most keyboards.
    m_zoomIn->setShortcuts({m_zoomIn->shortcut(), QKeyCombination(Qt::CTRL, Qt::Key_Equal)});
    m_fitWidth =
        addCommand(IconShape::FitWidth, localized("Fit Width", "Tool bar of the detail view"),
                   QKeyCombination(Qt::CTRL, Qt::Key_0));
    m_fitPage = addCommand(IconShape::FitPage, localized("Fit Page", "Tool bar of the detail view"),
                           QKeyCombination(Qt::CTRL, Qt::Key_9));
    // Hosts find them by these names.
    m_fitWidth->setObjectName(QStringLiteral("fitWidth"));
    m_fitPage->setObjectName(QStringLiteral("fitPage"));
    m_fitWidth->setCheckable(true);
    m_fitPage->setCheckable(true);
    connect(m_zoomOut, &QAction::triggered, &m_view, [this] { m_view.zoomOut(); });
    connect(m_zoomIn, &QAction::triggered, &m_view, [this] { m_view.zoomIn(); });
    connect(m_fitWidth, &QAction::triggered, &m_view,
            [this] { m_view.setZoomMode(HostPDFView::ZoomMode::FitWidth); });
    connect(m_fitPage, &QAction::triggered, &m_view,
            [this] { m_view.setZoomMode(HostPDFView::ZoomMode::FitPage); });
    m_zoomLevel->setMenu(makeZoomMenu());
    m_zoomLevel->setToolTip(localized("Zoom Level", "Tool bar of the detail view"));
    auto *button = qobject_cast<QToolButton *>(widgetForAction(m_zoomLevel));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setAccessibleName(m_zoomLevel->toolTip());
    // The bar must not jump about while one zooms.
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(percent(1000)) +
                            smallIcons.width());
}

QMenu *DetailToolBar::makeZoomMenu()
{
    auto *menu = new QMenu(this);
    for (const int level : zoomLevels) {
        menu->addAction(percent(level), &m_view, [this, level] {
            m_view.setScaleFactor(HostPDFView::naturalScale * level / 100);
        });
    }
    menu->addSeparator();
    menu->addAction(m_fitWidth);
    menu->addAction(m_fitPage);
    return menu;
}

void DetailToolBar::addFind()
{
    m_find = addCommand(IconShape::Find, localized("Find", "Tool bar of the detail view"),
                        QKeySequence::Find);
    m_invert =
        addCommand(IconShape::Invert, localized("Inverted Pages", "Tool bar of the detail view"),
                   QKeyCombination(Qt::CTRL, Qt::Key_I));
    m_invert->setObjectName(QStringLiteral("invertedPages"));
    m_invert->setCheckable(true);
    connect(m_find, &QAction::triggered, &m_view, &HostPDFView::showFindBar);
    connect(m_invert, &QAction::triggered, &m_view, &HostPDFView::setColorsInverted);
}

void DetailToolBar::connectView()
{
    connect(&m_view, &HostPDFView::historyChanged, this, [this] {
        updateHistory();
        // Also what is told when a document is taken away.
        updateDocument();
    });
    connect(&m_view, &HostPDFView::documentReady, this, [this] {
        updateHistory();
        updateDocument();
    });
    connect(&m_view, &HostPDFView::zoomChanged, this, &DetailToolBar::updateZoom);
    connect(&m_view, &HostPDFView::colorsInverted, m_invert, &QAction::setChecked);
}

void DetailToolBar::updateHistory()
{
    m_back->setEnabled(m_view.canGoBack());
    m_forward->setEnabled(m_view.canGoForward());
}

void DetailToolBar::updateZoom()
{
    m_zoomLevel->setText(percent(qRound(m_view.scaleFactor() / HostPDFView::naturalScale * 100)));
    m_fitWidth->setChecked(m_view.zoomMode() == HostPDFView::ZoomMode::FitWidth);
    m_fitPage->setChecked(m_view.zoomMode() == HostPDFView::ZoomMode::FitPage);
}

void DetailToolBar::updateDocument()
{
    const bool hasPages = m_view.currentPage() >= 0;
    for (QAction *action : {m_zoomOut, m_zoomLevel, m_zoomIn, m_fitWidth, m_fitPage, m_find})
        action->setEnabled(hasPages);
}

} // namespace Tavrin
