// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QWidget>

namespace Tavrin
{

class CustomDividerSplitView;
class DetailToolBar;
class HostPDFView;
class NoticeBar;

/// The view of the detail view's controller: notices and the parts of the split view, and above
/// them the tool bar once there is a document to command.
///
/// F6 leads from the sidebar to the document and back, unless the window has a use for that key.
/// Main thread.
class DetailView : public QWidget
{
    Q_OBJECT

public:
    explicit DetailView(QWidget *parent = nullptr);

    /// Behind the parts that are there. The first part is the sidebar.
    void addPart(QWidget &part);
    /// Where the bar's commands go.
    void addToolBar(HostPDFView &view);
    /// Puts the divider between sidebar and document where it is at first.
    void resetDivider();

    CustomDividerSplitView &splitView() const { return *m_splitView; }
    NoticeBar &noticeBar() const { return *m_noticeBar; }

    bool isSidebarShown() const;
    void showSidebar(bool shown);
    /// To the other part.
    void switchPart();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *sidebar() const;
    void focusSidebar();
    void updateSidebarAction();

    CustomDividerSplitView *m_splitView;
    NoticeBar *m_noticeBar;
    DetailToolBar *m_toolBar = nullptr;
    QPointer<HostPDFView> m_document;
};

} // namespace Tavrin
