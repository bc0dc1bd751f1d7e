// SPDX-License-Identifier: Apache-2.0
#pragma once

class QMainWindow;
class QSplitter;

namespace Tavrin::Reader
{

/// Where the reader's window was on the screen, and how it was divided, from one run to the next.
class WindowState
{
public:
    /// The first splitter divides the window, the second its side.
    WindowState(QMainWindow &window, QSplitter &splitter, QSplitter &sideSplitter);

    /// What the last run has left; at first a size that the screen has room for.
    void restore();
    void store() const;

private:
    QMainWindow &m_window;
    QSplitter &m_splitter;
    QSplitter &m_sideSplitter;
};

} // namespace Tavrin::Reader
