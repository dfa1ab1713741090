// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include <benchmark/benchmark.h>

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
