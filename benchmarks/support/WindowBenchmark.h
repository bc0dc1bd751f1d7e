// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>
#include <string_view>

namespace Tavrin::Benchmarks
{

/// The main function of a benchmark of windows: without a display, and without the settings of the
/// user who runs it. `measure` prints its figures and tells whether they are within their limits;
/// with --check that is what the process returns.
inline int runWindowBenchmark(int argc, char **argv, const std::function<bool()> &measure)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const bool checks = std::any_of(argv, argv + argc, [](const char *argument) {
        return std::string_view(argument) == "--check";
    });
    return !measure() && checks ? 1 : 0;
}

} // namespace Tavrin::Benchmarks
