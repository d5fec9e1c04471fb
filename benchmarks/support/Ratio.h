// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace morvane::bench {

/** One figure: the median time of a benchmark over that of its peer, both measured alternately in one run. */
struct Ratio
{
    std::string name;
    std::string numerator;   ///< name of the benchmark
    std::string denominator; ///< name of its peer
    double limit = 0;        ///< the ratio must not exceed it; 0 where it is shown in the table only
};

/** Adds a ratio to those that the program reports; call it before main(), as MORVANE_RATIO does. */
bool addRatio(Ratio ratio);
const std::vector<Ratio>& ratios();

/** Runs each benchmark many times, in random interleaving, and keeps every time. */
::benchmark::internal::Benchmark* interleaved(::benchmark::internal::Benchmark* benchmark);

/**
 * Prints the table of all ratios whose two benchmarks were run, and then `ratio NAME VALUE` for those with a limit.
 * @param times every measured time of each benchmark, in nanoseconds
 * @return whether each of them stayed within its limit
 */
bool report(const std::vector<std::pair<std::string, double>>& times);

} // namespace morvane::bench

/** Registers the function @p function as a benchmark of that name; options may follow: `->Iterations(3)`. */
#define MORVANE_BENCHMARK(function)                                                                                    \
    static ::benchmark::internal::Benchmark* const function##Registered =                                              \
        ::morvane::bench::interleaved(::benchmark::RegisterBenchmark(#function, &function))

/** MORVANE_RATIO(name, numerator, denominator, limit), the two being names of functions registered before. */
#define MORVANE_RATIO(name, numerator, denominator, limit)                                                             \
    static const bool ratio_##name = ::morvane::bench::addRatio({#name, #numerator, #denominator, limit})
