// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace Tavrin::Reader
{

class ControllerPane;

/// Whether pages are inverted and what they are fitted to, from one document to the next and from
/// one run to the next.
class DocumentState : public QObject
{
    Q_OBJECT

public:
    /// Goes with the pane that documents are shown in.
    explicit DocumentState(ControllerPane &pane);

private:
    void follow(const QWidget *view);
};

} // namespace Tavrin::Reader
