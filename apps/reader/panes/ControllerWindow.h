// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <Tavrin/interface/toolkit/ViewController.h>

namespace Tavrin::Reader
{

class ControllerPane;

/// A window of its own for the view of a controller, which it keeps. It is called as the
/// controller is, and remembers its place under a name. Deletes itself when closed.
class ControllerWindow : public QWidget
{
    Q_OBJECT

public:
    /// Shows one that goes with another window. If one of that name is open there, it comes to the
    /// front and shows this controller instead.
    static ControllerWindow *show(const ViewControllerPtr &controller, const QString &name,
                                  QWidget &owner);

    const ViewControllerPtr &controller() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    ControllerWindow(const QString &name, QWidget &owner);
    void setController(const ViewControllerPtr &controller);
    QString geometryKey() const;

    ControllerPane *m_pane;
};

} // namespace Tavrin::Reader
