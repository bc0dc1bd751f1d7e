// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/DetailView.h>

#include <Tavrin/interface/detail/CustomDividerSplitView.h>
#include <Tavrin/interface/detail/DetailToolBar.h>
#include <Tavrin/interface/pdfview/HostPDFView.h>
#include <Tavrin/interface/toolkit/FocusTraversal.h>
#include <Tavrin/interface/toolkit/NoticeBar.h>

#include <QKeyEvent>
#include <QSignalBlocker>

#include "ui_SpecPDFView.h"

namespace Tavrin
{

namespace
{

constexpr double dividerPosition = 270.0;
/// In a narrow window the sidebar makes room until it is this wide; the document keeps enough to
/// be read.
constexpr int narrowestSidebar = 120;
constexpr int narrowestDocument = 240;

} // namespace

DetailView::DetailView(QWidget *parent) : QWidget(parent)
{
    Ui::SpecPDFView form;
    form.setupUi(this);
    m_splitView = form.splitView;
    m_noticeBar = form.noticeBar;
    connect(m_splitView, &QSplitter::splitterMoved, this, &DetailView::updateSidebarAction);
}

void DetailView::addPart(QWidget &part)
{
    m_splitView->addWidget(&part);
    const int index = m_splitView->indexOf(&part);
    // What the window gains or loses is the document's; the sidebar can be folded away.
    m_splitView->setStretchFactor(index, index == 0 ? 0 : 1);
    m_splitView->setCollapsible(index, index == 0);
    part.setMinimumWidth(index == 0 ? narrowestSidebar : narrowestDocument);
    part.show();
}

void DetailView::addToolBar(HostPDFView &view)
{
    m_document = &view;
    m_toolBar = new DetailToolBar(view, *this, this);
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_toolBar);
    connect(m_toolBar->sidebarAction(), &QAction::triggered, this, &DetailView::showSidebar);
}

void DetailView::resetDivider()
{
    m_splitView->setPosition(dividerPosition, 0);
    updateSidebarAction();
}

QWidget *DetailView::sidebar() const
{
    return m_splitView->widget(0);
}

bool DetailView::isSidebarShown() const
{
    return sidebar() && !sidebar()->isHidden() && m_splitView->sizes().first() > 0;
}

void DetailView::showSidebar(bool shown)
{
    if (!sidebar())
        return;
    const bool hadFocus = sidebar()->isAncestorOf(focusWidget());
    sidebar()->setVisible(shown);
    if (shown && m_splitView->sizes().first() == 0)
        m_splitView->setPosition(dividerPosition, 0);
    if (!shown && hadFocus && m_document)
        m_document->setFocus(Qt::OtherFocusReason);
    updateSidebarAction();
}

void DetailView::updateSidebarAction()
{
    if (m_toolBar)
        m_toolBar->sidebarAction()->setChecked(isSidebarShown());
}

void DetailView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F6 && (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier)
        switchPart();
    else
        QWidget::keyPressEvent(event);
}

void DetailView::switchPart()
{
    const QWidget *focused = window()->focusWidget();
    const bool isInSidebar = sidebar() && focused && sidebar()->isAncestorOf(focused);
    if (!isInSidebar)
        focusSidebar();
    else if (m_document)
        m_document->setFocus(Qt::ShortcutFocusReason);
}

void DetailView::focusSidebar()
{
    if (!sidebar())
        return;
    showSidebar(true);
    FocusTraversal::enter(*sidebar());
}

} // namespace Tavrin
