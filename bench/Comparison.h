// Compares two ways of doing the same work: plainly and with the library.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

namespace Bench
{

/// One side of a comparison. Under callgrind it runs `rounds` times and writes a dump named
/// "<work>|<side>|<rounds>"; otherwise Google Benchmark times it. The result of `side` is consumed;
/// `warmUp` runs first and is not measured.
template <class Side, class WarmUp>
void AddSide(const std::string& work, const std::string& name, int rounds, Side side, WarmUp warmUp)
{
    auto* const benchmark =
        benchmark::RegisterBenchmark((work + '/' + name).c_str(), [=](benchmark::State& state) {
            benchmark::DoNotOptimize(warmUp());
            const std::string dump = work + '|' + name + '|' + std::to_string(rounds);
            CALLGRIND_TOGGLE_COLLECT;
            for (auto round : state) {
                benchmark::DoNotOptimize(side());
            }
            CALLGRIND_TOGGLE_COLLECT;
            CALLGRIND_DUMP_STATS_AT(dump.c_str());
        });
    if (RUNNING_ON_VALGRIND != 0) {
        benchmark->Iterations(rounds);
    }
}

/// The same, warmed up by one call of `side`.
template <class Side>
void AddSide(const std::string& work, const std::string& name, int rounds, Side side)
{
    AddSide(work, name, rounds, side, side);
}

/// Both sides do the same work with the same input.
template <class Baseline, class Ours>
void Compare(const std::string& work, int rounds, Baseline baseline, Ours ours)
{
    AddSide(work, "baseline", rounds, std::move(baseline));
    AddSide(work, "ours", rounds, std::move(ours));
}

/// The body of a program's main.
inline int Run(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

}  // namespace Bench
