// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/Ratio.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <string>
#include <utility>
#include <vector>

namespace {

/** Shows what the console reporter shows, and keeps the time of each repetition. */
class TimeKeeper : public ::benchmark::ConsoleReporter
{
public:
    TimeKeeper() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            hasErrors = hasErrors || run.error_occurred;
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                times.emplace_back(
                    run.run_name.function_name, run.GetAdjustedRealTime() * toNanoseconds(run.time_unit));
            }
        }
        std::vector<Run> shown;
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate || run.error_occurred) {
                shown.push_back(run);
            }
        }
        ConsoleReporter::ReportRuns(shown);
    }

    std::vector<std::pair<std::string, double>> times;
    bool hasErrors = false;

private:
    static double toNanoseconds(::benchmark::TimeUnit unit) { return 1e9 / ::benchmark::GetTimeUnitMultiplier(unit); }
};

/** The settings and folders of the user do not change, and do not change the figures. */
void usePrivateHome(const QTemporaryDir& home)
{
    for (const char* const variable : {"HOME", "USERPROFILE", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        qputenv(variable, QDir(home.path()).path().toUtf8());
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir home;
    usePrivateHome(home);
    // Given first, so that the command line can override them.
    std::vector<char*> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortRuns = "--benchmark_min_time=0.005";
    arguments.insert(arguments.begin() + 1, {interleaving.data(), shortRuns.data()});
    int count = static_cast<int>(arguments.size());
    ::benchmark::Initialize(&count, arguments.data());
    if (::benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 2;
    }
    const QApplication application(argc, argv);
    TimeKeeper keeper;
    ::benchmark::RunSpecifiedBenchmarks(&keeper);
    ::benchmark::Shutdown();
    const bool isWithinLimits = morvane::bench::report(keeper.times);
    return isWithinLimits && !keeper.hasErrors ? 0 : 1;
}
