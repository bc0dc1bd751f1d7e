// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <functional>

namespace Tavrin::Testing
{

/// Waits, while events are handled. Says whether it was not in vain.
inline bool waitFor(const std::function<bool()> &condition, int milliseconds = 20'000)
{
    return QTest::qWaitFor(condition, milliseconds);
}

/// The window of a kind that is on the screen; null if there is none.
template <class Window>
Window *shownWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<Window *>(widget);
        if (window && window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace Tavrin::Testing
