// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>

namespace Tavrin::Cli
{

/// A bar on the last line of the terminal, on standard error; nothing where that is no terminal.
class ProgressBar
{
public:
    ProgressBar();
    ~ProgressBar();
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;

    /// From 0 to 1. Drawn ten times a second at most.
    void set(double fraction);
    /// Takes the bar away, so that a line can be printed in its place.
    void clear();

private:
    bool m_isTerminal;
    bool m_isShown = false;
    QElapsedTimer m_sinceDrawn;
};

} // namespace Tavrin::Cli
