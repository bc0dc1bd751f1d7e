// SPDX-License-Identifier: Apache-2.0
#include <reader/window/WindowState.h>

#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QSplitter>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize firstSize(1240, 800);
constexpr int firstSideWidth = 330;
/// Of the screen: a window has a frame.
constexpr double largestShare = 0.92;

constexpr auto geometryKey = "Reader.Window"_L1;
constexpr auto splitterKey = "Reader.Splitter"_L1;
constexpr auto sideSplitterKey = "Reader.SideSplitter"_L1;

} // namespace

WindowState::WindowState(QMainWindow &window, QSplitter &splitter, QSplitter &sideSplitter)
    : m_window(window), m_splitter(splitter), m_sideSplitter(sideSplitter)
{
}

void WindowState::restore()
{
    const QSettings settings;
    if (!m_window.restoreGeometry(settings.value(geometryKey).toByteArray()))
        m_window.resize(
            firstSize.boundedTo(m_window.screen()->availableGeometry().size() * largestShare));
    if (!m_splitter.restoreState(settings.value(splitterKey).toByteArray()))
        m_splitter.setSizes({firstSideWidth, firstSize.width() - firstSideWidth});
    if (!m_sideSplitter.restoreState(settings.value(sideSplitterKey).toByteArray()))
        m_sideSplitter.setSizes({firstSize.height() * 3, firstSize.height()});
}

void WindowState::store() const
{
    QSettings settings;
    settings.setValue(geometryKey, m_window.saveGeometry());
    settings.setValue(splitterKey, m_splitter.saveState());
    settings.setValue(sideSplitterKey, m_sideSplitter.saveState());
}

} // namespace Tavrin::Reader
