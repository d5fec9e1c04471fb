// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The cost of linking with the library: the time until main() of a program that does nothing, compared with one that is
// linked with Qt Widgets only, and the sizes of the files.
#include "support/Ratio.h"

#include <QFileInfo>
#include <QProcess>

#include <cstdio>

namespace {

void start(benchmark::State& state, const char* program)
{
    for (auto _ : state) {
        if (QProcess::execute(QString::fromUtf8(program), {}) != 0) {
            state.SkipWithError("the program did not run");
            return;
        }
    }
}

void loadQtWidgets(benchmark::State& state)
{
    start(state, MORVANE_BENCH_QT_PROGRAM);
}

void loadLibrary(benchmark::State& state)
{
    start(state, MORVANE_BENCH_LIBRARY_PROGRAM);
}

void printSize(const char* name, const char* file)
{
    std::printf("size %-14s %8.0f KiB\n", name, static_cast<double>(QFileInfo(QString::fromUtf8(file)).size()) / 1024);
}

void sizes(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(state.iterations());
    }
    static const bool printed = [] {
        printSize("morvane-ui", MORVANE_BENCH_UI_FILE);
        printSize("morvane-host", MORVANE_BENCH_HOST_FILE);
        printSize("Qt5Widgets", MORVANE_BENCH_QT_FILE);
        return true;
    }();
    benchmark::DoNotOptimize(printed);
}

MORVANE_BENCHMARK(sizes)->Iterations(1);
MORVANE_BENCHMARK(loadQtWidgets)->Iterations(3)->UseRealTime();
MORVANE_BENCHMARK(loadLibrary)->Iterations(3)->UseRealTime();

MORVANE_RATIO(load_time, loadLibrary, loadQtWidgets, 1.5);

} // namespace
