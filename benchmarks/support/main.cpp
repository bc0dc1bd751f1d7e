// SPDX-License-Identifier: Apache-2.0
#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <algorithm>
#include <string_view>

#include <support/Figures.h>
#include <support/RatioBenchmark.h>

int main(int argc, char **argv)
{
    using namespace Tavrin::Benchmarks;
    const QCoreApplication application(argc, argv);
    const bool checks = std::any_of(argv, argv + argc, [](const char *argument) {
        return std::string_view(argument) == "--check";
    });
    registerAllFigures();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return checks && !reporter.isWithinLimits() ? 1 : 0;
}
