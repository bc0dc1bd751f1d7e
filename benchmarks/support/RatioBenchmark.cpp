// SPDX-License-Identifier: Apache-2.0
#include <support/RatioBenchmark.h>

#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace Tavrin::Benchmarks
{

namespace
{

using Clock = std::chrono::steady_clock;

double seconds(const std::function<void()> &work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

int repetitions()
{
    const int given = qEnvironmentVariableIntValue("TAVRIN_BENCH_REPETITIONS");
    return given > 0 ? given : 7;
}

void run(benchmark::State &state, const Ratio &ratio)
{
    std::vector<double> floors;
    std::vector<double> measures;
    std::vector<double> ratios;
    // Neither pays for files that are not in memory yet.
    ratio.floor();
    ratio.measured();
    for ([[maybe_unused]] auto iteration : state) {
        floors.push_back(seconds(ratio.floor));
        measures.push_back(seconds(ratio.measured));
        ratios.push_back(measures.back() / floors.back());
        state.SetIterationTime(measures.back());
    }
    state.counters["floor_ms"] = 1000 * median(floors);
    state.counters["measured_ms"] = 1000 * median(measures);
    state.counters["ratio"] = median(ratios);
    state.counters["limit"] = ratio.limit;
}

} // namespace

void registerRatio(const Ratio &ratio)
{
    benchmark::RegisterBenchmark(ratio.name.c_str(),
                                 [ratio](benchmark::State &state) {
                                     try {
                                         run(state, ratio);
                                     } catch (const std::exception &error) {
                                         state.SkipWithError(error.what());
                                     }
                                 })
        ->UseManualTime()
        ->Iterations(repetitions());
}

QString corpusDocument(const QString &name)
{
    const QString path = qEnvironmentVariable("TAVRIN_CORPUS") + u'/' + name;
    if (QFileInfo::exists(path))
        return path;
    std::fprintf(stderr, "%s is left out: TAVRIN_CORPUS has no such file\n", qPrintable(name));
    return {};
}

bool RatioReporter::ReportContext(const Context & /*context*/)
{
    std::printf("%-52s %12s %12s %8s %8s\n", "", "floor ms", "measured ms", "ratio", "limit");
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred) {
            std::printf("%-52s %s\n", run.run_name.function_name.c_str(),
                        run.error_message.c_str());
            m_isWithinLimits = false;
            continue;
        }
        const auto counter = [&run](const char *name) { return run.counters.at(name).value; };
        const bool isWithin = counter("ratio") <= counter("limit");
        m_isWithinLimits = m_isWithinLimits && isWithin;
        std::printf("%-52s %12.3f %12.3f %8.2f %8.2f%s\n", run.run_name.function_name.c_str(),
                    counter("floor_ms"), counter("measured_ms"), counter("ratio"), counter("limit"),
                    isWithin ? "" : "  OVER");
    }
    std::fflush(stdout);
}

} // namespace Tavrin::Benchmarks
