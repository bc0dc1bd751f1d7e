// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <Tavrin/interface/toolkit/ViewController.h>

class QLabel;
class QStackedLayout;

namespace Tavrin::Reader
{

/// A place in a window for the view of one controller, which it keeps; without one, a text that
/// says what to do next.
class ControllerPane : public QWidget
{
    Q_OBJECT

public:
    explicit ControllerPane(const QString &placeholder, QWidget *parent = nullptr);
    ~ControllerPane() override;

    const ViewControllerPtr &controller() const { return m_controller; }
    /// Null shows the placeholder.
    void setController(const ViewControllerPtr &controller);
    void setPlaceholder(const QString &text);

Q_SIGNALS:
    /// The view of another controller is on show; null for the placeholder.
    void shown(QWidget *view);

private:
    QStackedLayout *m_layout;
    QLabel *m_placeholder;
    ViewControllerPtr m_controller;
};

} // namespace Tavrin::Reader
