// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>
#include <QWidgetAction>

class QLabel;
class QLineEdit;

namespace Tavrin
{

class HostPDFView;

/// Says which page of how many a view shows, and goes to the page that is typed in.
///
/// Return goes there and hands the focus to the document; Escape does without going. What is no
/// number is taken back, and a number beyond the end means the last page.
class PageField : public QWidget
{
    Q_OBJECT

public:
    explicit PageField(HostPDFView &view, QWidget *parent = nullptr);

    /// Ready to be typed over.
    void edit();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showPage();
    void commit();

    HostPDFView &m_view;
    QLineEdit *m_number;
    QLabel *m_count;
};

/// A page field in a tool bar, and another one in the menu of what the bar has no room for.
class PageFieldAction : public QWidgetAction
{
    Q_OBJECT

public:
    PageFieldAction(HostPDFView &view, QObject *parent);

protected:
    QWidget *createWidget(QWidget *parent) override;

private:
    HostPDFView &m_view;
};

} // namespace Tavrin
