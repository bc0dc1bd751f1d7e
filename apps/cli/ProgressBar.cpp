// SPDX-License-Identifier: Apache-2.0
#include "ProgressBar.h"

#include <QByteArray>

#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace Tavrin::Cli
{

namespace
{

constexpr int width = 40;
constexpr qint64 leastInterval = 100;

} // namespace

ProgressBar::ProgressBar() : m_isTerminal(isatty(STDERR_FILENO) != 0) {}

ProgressBar::~ProgressBar()
{
    clear();
}

void ProgressBar::set(double fraction)
{
    if (!m_isTerminal || (m_sinceDrawn.isValid() && m_sinceDrawn.elapsed() < leastInterval))
        return;
    m_sinceDrawn.start();
    const double known = std::clamp(fraction, 0.0, 1.0);
    const int filled = static_cast<int>(known * width);
    const QByteArray bar = QByteArray(filled, '=') + QByteArray(width - filled, ' ');
    std::fprintf(stderr, "\r[%s] %3d %%", bar.constData(), static_cast<int>(100 * known));
    m_isShown = true;
}

void ProgressBar::clear()
{
    if (m_isShown)
        std::fputs("\r\x1b[K", stderr);
    m_isShown = false;
}

} // namespace Tavrin::Cli
