// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

#include <support/Timing.h>

namespace Tavrin::Benchmarks
{

/// Asks the event loop for a turn every millisecond, and notes how long each takes to come, and
/// how much of that is the work of the thread itself: the rest it slept, or others had the machine.
class StallMeter
{
public:
    StallMeter()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_turns.push_back(milliseconds(m_clock));
            m_works.push_back(computed() - m_computed);
            m_clock.start();
            m_computed = computed();
        });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_clock.start();
        m_timer.start(1);
    }
    double workAt99() const { return at99(m_works); }
    double longestWork() const { return *std::max_element(m_works.begin(), m_works.end()); }
    void report(const char *what) const
    {
        std::printf("%-28s turns %5.2f ms, worst %5.2f; own work %5.2f ms, worst %5.2f\n", what,
                    at99(m_turns), *std::max_element(m_turns.begin(), m_turns.end()), at99(m_works),
                    longestWork());
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_computed = computed();
    std::vector<double> m_turns;
    std::vector<double> m_works;
};

} // namespace Tavrin::Benchmarks
