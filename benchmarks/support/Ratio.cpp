// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/Ratio.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace morvane::bench {

namespace {

std::vector<Ratio>& mutableRatios()
{
    static std::vector<Ratio> all;
    return all;
}

double medianOf(const std::vector<std::pair<std::string, double>>& times, const std::string& name)
{
    std::vector<double> own;
    for (const auto& [benchmark, time] : times) {
        if (benchmark == name) {
            own.push_back(time);
        }
    }
    if (own.empty()) {
        return 0;
    }
    const auto middle = own.begin() + static_cast<std::ptrdiff_t>(own.size() / 2);
    std::nth_element(own.begin(), middle, own.end());
    return *middle;
}

} // namespace

bool addRatio(Ratio ratio)
{
    mutableRatios().push_back(std::move(ratio));
    return true;
}

const std::vector<Ratio>& ratios()
{
    return mutableRatios();
}

::benchmark::internal::Benchmark* interleaved(::benchmark::internal::Benchmark* benchmark)
{
    // Odd, so that the median is a time that was measured.
    return benchmark->Repetitions(61);
}

bool report(const std::vector<std::pair<std::string, double>>& times)
{
    bool allWithin = true;
    std::vector<std::pair<std::string, double>> lines;
    std::printf("\n%-32s %14s %14s %8s %8s\n", "ratio", "median ns", "peer's ns", "value", "limit");
    for (const Ratio& ratio : ratios()) {
        const double own = medianOf(times, ratio.numerator);
        const double peer = medianOf(times, ratio.denominator);
        if (own <= 0 || peer <= 0) {
            continue; // left out by a filter on the command line
        }
        const double value = own / peer;
        std::printf("%-32s %14.1f %14.1f %8.3g ", ratio.name.c_str(), own, peer, value);
        if (ratio.limit <= 0) {
            std::printf("%8s\n", "-");
            continue;
        }
        const bool within = value <= ratio.limit;
        std::printf("%8.3g%s\n", ratio.limit, within ? "" : "  exceeded");
        allWithin = allWithin && within;
        lines.emplace_back(ratio.name, value);
    }
    std::printf("\n");
    for (const auto& [name, value] : lines) {
        std::printf("ratio %s %.3g\n", name.c_str(), value);
    }
    return allWithin;
}

} // namespace morvane::bench
