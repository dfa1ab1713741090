// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace BENCH {

/// Enters `work`, a function object that is called once a round, as "job/contestant". What
/// `prepare` returns is handed to it and made before the clock starts.
template <class Prepare, class Work>
void Contest(const std::string& name, Prepare prepare, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [prepare, work](benchmark::State& state) {
        auto&& input = prepare();
        for (auto _ : state) {
            work(input);
        }
    });
}

/// The same, with all free memory handed back to the system between the rounds, so that every
/// round pays for the memory that it takes, as a program's first one does.
template <class Prepare, class Work>
void ContestInFreshMemory(const std::string& name, Prepare prepare, Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [prepare, work](benchmark::State& state) {
        auto&& input = prepare();
        for (auto _ : state) {
            state.PauseTiming();
            ::malloc_trim(0);
            state.ResumeTiming();
            work(input);
        }
    });
}

inline int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

}  // namespace BENCH
