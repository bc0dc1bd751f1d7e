// SPDX-License-Identifier: Apache-2.0
#include <reader/window/PartFocus.h>

#include <QSplitter>

#include <Tavrin/interface/toolkit/FocusTraversal.h>
#include <reader/lookup/LookupField.h>
#include <reader/panes/ControllerPane.h>
#include <reader/window/SidePane.h>

namespace Tavrin::Reader
{

namespace
{

/// Those of its children, from left to right; itself if it has none.
QList<QWidget *> partsOf(ViewController &controller)
{
    QList<QWidget *> parts;
    for (const ViewControllerPtr &child : controller.childViewControllers())
        parts += child->view();
    return parts.isEmpty() ? QList<QWidget *>{controller.view()} : parts;
}

} // namespace

PartFocus::PartFocus(SidePane &side, ControllerPane &detail) : m_side(side), m_detail(detail) {}

void PartFocus::move(int step) const
{
    QList<QWidget *> parts{&m_side.field()};
    for (int i = 0; i < m_side.splitter().count(); ++i)
        parts += m_side.splitter().widget(i);
    if (const auto &controller = m_detail.controller())
        parts += partsOf(*controller);
    const QWidget *focused = m_side.window()->focusWidget();
    qsizetype at = step > 0 ? -1 : parts.size();
    for (qsizetype i = 0; i < parts.size() && focused; ++i) {
        if (parts[i] == focused || parts[i]->isAncestorOf(focused))
            at = i;
    }
    // Parts that are hidden, or have nothing to put the focus on, are passed over.
    for (qsizetype tried = 0; tried < parts.size(); ++tried) {
        at = (at + step + parts.size()) % parts.size();
        if (FocusTraversal::enter(*parts[at]))
            return;
    }
}

} // namespace Tavrin::Reader
