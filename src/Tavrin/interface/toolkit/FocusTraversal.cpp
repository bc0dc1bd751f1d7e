// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/FocusTraversal.h>

#include <QWidget>

namespace Tavrin::FocusTraversal
{

bool enter(QWidget &part)
{
    const auto takesFocus = [&part](const QWidget *widget) {
        return widget && (widget == &part || part.isAncestorOf(widget)) && widget->isVisible() &&
               widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
    };
    QWidget *target = part.focusWidget() ? part.focusWidget() : &part;
    for (QWidget *next = part.nextInFocusChain(); !takesFocus(target) && next != &part;
         next = next->nextInFocusChain())
        target = next;
    if (!takesFocus(target))
        return false;
    target->setFocus(Qt::ShortcutFocusReason);
    return true;
}

} // namespace Tavrin::FocusTraversal
