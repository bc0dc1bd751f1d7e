// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace Tavrin::Benchmarks
{

inline double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// What this thread has computed so far, in milliseconds.
inline double computed()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Of values of which there are any.
inline double at99(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() * 99 / 100];
}

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
    void report(const char *what) const
    {
        std::printf("%-28s turns %5.2f ms, worst %5.2f; own work %5.2f ms, worst %5.2f\n", what,
                    at99(m_turns), *std::max_element(m_turns.begin(), m_turns.end()), at99(m_works),
                    *std::max_element(m_works.begin(), m_works.end()));
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_computed = computed();
    std::vector<double> m_turns;
    std::vector<double> m_works;
};

} // namespace Tavrin::Benchmarks
