// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <functional>
#include <string>

namespace Tavrin::Benchmarks
{

/// A figure as the ratio of what Tavrin takes to a floor, both measured in turn in the same run,
/// so that it holds on machines of any speed.
struct Ratio {
    std::string name;
    /// What the ratio should stay below.
    double limit = 0;
    /// Each does the whole work once. Whatever it throws makes the figure an error.
    std::function<void()> floor;
    std::function<void()> measured;
};

/// Adds the figure to the run. Counters `floor_ms`, `measured_ms` and `ratio` are medians.
void registerRatio(const Ratio &ratio);

/// A document of the corpus, by the environment's TAVRIN_CORPUS; empty, and the figure is left
/// out with a word on standard error, if it is not there.
QString corpusDocument(const QString &name);

/// Prints the figures as one table, and remembers whether one is over its limit.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    bool isWithinLimits() const { return m_isWithinLimits; }

private:
    bool m_isWithinLimits = true;
};

} // namespace Tavrin::Benchmarks
