// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow's own work on a name: giving it an extension, and finding out whether it can be written.

#include "support/Ratio.h"
#include "ui/qt/dialogs/save/SaveFileExtension_p.h"
#include "ui/qt/dialogs/save/WriteAccessProbe_p.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <boost/filesystem/path.hpp>

#include <cstdio>
#include <regex>

using morvane::ui::applyFilterExtension;
using morvane::ui::checkWriteAccess;

namespace {

const std::string filenames[] = {"/home/user/projects/turbine/run 17/report", "/home/user/projects/turbine/report.txt",
    "/home/user/measurements/blade-temperature.", "/srv/release1.2/out"};
const std::string nameFilters[] = {"Data files (*.dat)", "Layouts (*.plt *.lay)", "All files (*)", "Text (*.txt)"};

std::string applyByExpressions(const std::string& filename, const std::string& nameFilter)
{
    static const std::regex noise("[\\s\\(\\)\\*]");
    static const QRegularExpression anyExtension("\\.[^\\.]*$");
    const std::size_t dot = nameFilter.rfind('.');
    const std::string extension =
        std::regex_replace(dot == std::string::npos ? nameFilter : nameFilter.substr(dot), noise, "");
    const QString name = QString::fromStdString(filename);
    if (extension.empty() || (name.contains(anyExtension) && !name.endsWith('.'))) {
        return filename;
    }
    boost::filesystem::path path(filename);
    return path.replace_extension(extension).generic_string();
}

template <typename Rule>
void applyAll(benchmark::State& state, Rule rule)
{
    for (auto _ : state) {
        for (const std::string& filename : filenames) {
            for (const std::string& nameFilter : nameFilters) {
                benchmark::DoNotOptimize(rule(filename, nameFilter));
            }
        }
    }
}

void ruleByHand(benchmark::State& state)
{
    applyAll(state, applyFilterExtension);
}

void ruleByExpressions(benchmark::State& state)
{
    applyAll(state, applyByExpressions);
}

void probeNewName(benchmark::State& state)
{
    const QTemporaryDir directory;
    const boost::filesystem::path name(directory.filePath("new name.dat").toStdString());
    for (auto _ : state) {
        if (!checkWriteAccess(name)) {
            state.SkipWithError("the probe refused");
        }
    }
}

void openCloseRemove(benchmark::State& state)
{
    const QTemporaryDir directory;
    const std::string name = directory.filePath("new name.dat").toStdString();
    for (auto _ : state) {
        std::FILE* const file = std::fopen(name.c_str(), "a+");
        if (!file) {
            state.SkipWithError("cannot open");
            break;
        }
        std::fclose(file);
        std::remove(name.c_str());
    }
}

} // namespace

MORVANE_BENCHMARK(ruleByHand);
MORVANE_BENCHMARK(ruleByExpressions);
MORVANE_BENCHMARK(probeNewName);
MORVANE_BENCHMARK(openCloseRemove);

MORVANE_RATIO(extension_rule, ruleByHand, ruleByExpressions, 0.3);
MORVANE_RATIO(write_probe, probeNewName, openCloseRemove, 2.5);
