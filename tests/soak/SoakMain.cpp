// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Opens and closes every dialog and widget many times and checks the resources of the process. Not part of the tests
// that run automatically: `./dev soak [--windows] [CYCLES [NAME...]]`.
#include "soak/Holdings.h"
#include "soak/Platform.h"
#include "soak/Subject.h"
#include "ui/qt/dialogs/shell/Shell.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace morvane::test;

constexpr int warmUp = 500;
constexpr int fewestCycles = 1000; // with fewer, single blocks that come and go look like growth
/** Qt keeps a little more with each window (hash tables of windows that grow, a log of the X server). */
constexpr double mostBytesPerCycle = 16;

/** The growth after the warm-up cycles. */
struct Growth
{
    double bytesPerCycle = 0;
    std::vector<double> countsPerCycle = std::vector<double>(countedThings().size());
};

/** The holdings after all pending deletions and without the cache of pixmaps, which Qt may clear at any time. */
Holdings holdingsInQuiet()
{
    QPixmapCache::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return holdings();
}

/** Whether @p growth does not exceed @p allowed. */
bool isWithin(const Growth& growth, const Growth& allowed)
{
    bool within = growth.bytesPerCycle <= std::max(allowed.bytesPerCycle, 0.0) + mostBytesPerCycle;
    for (std::size_t i = 0; i < growth.countsPerCycle.size(); ++i) {
        within = within && growth.countsPerCycle[i] <= std::max(allowed.countsPerCycle[i], 0.0);
    }
    return within;
}

class Soak
{
public:
    Soak(int cycles, QWidget& parent) : m_cycles(cycles), m_parent(parent)
    {
        for (auto* const list : {&systemSubjects, &dialogSubjects, &widgetSubjects}) {
            const std::vector<Subject> more = list();
            m_subjects.insert(m_subjects.end(), more.begin(), more.end());
        }
    }

    /** Runs the subjects with these names, or all if there are no names. Returns whether none grows. */
    bool run(const std::vector<std::string>& names)
    {
        printHead();
        bool flat = true;
        for (const Subject& subject : m_subjects) {
            if (names.empty() || std::count(names.begin(), names.end(), subject.name) != 0) {
                flat = runOnce(subject) && flat;
            }
        }
        return flat;
    }

    bool knows(const std::string& name) const { return find(name) != nullptr; }

private:
    const Subject* find(const std::string& name) const
    {
        const auto found = std::find_if(
            m_subjects.begin(), m_subjects.end(), [&name](const Subject& subject) { return name == subject.name; });
        return found == m_subjects.end() ? nullptr : &*found;
    }

    bool runOnce(const Subject& subject)
    {
        if (m_growths.count(subject.name) != 0) {
            return true;
        }
        const Subject* const reference = subject.reference ? find(subject.reference) : nullptr;
        if (reference) {
            runOnce(*reference);
        }
        const Holdings before = repeat(subject, warmUp);
        QElapsedTimer clock;
        clock.start();
        const Holdings after = repeat(subject, m_cycles - warmUp);
        std::fprintf(stderr, "%s: %.0f s\n", subject.name, static_cast<double>(clock.elapsed()) / 1000);
        const Growth growth = between(before, after);
        m_growths[subject.name] = growth;
        return print(subject, reference, before, after, growth);
    }

    Holdings repeat(const Subject& subject, int times)
    {
        for (int i = 0; i < times; ++i) {
            subject.cycle(m_parent);
        }
        return holdingsInQuiet();
    }

    Growth between(const Holdings& before, const Holdings& after) const
    {
        const double cycles = m_cycles - warmUp;
        Growth growth;
        growth.bytesPerCycle = (after.heapBytes - before.heapBytes) / cycles;
        for (std::size_t i = 0; i < growth.countsPerCycle.size(); ++i) {
            growth.countsPerCycle[i] = static_cast<double>(after.counts[i] - before.counts[i]) / cycles;
        }
        return growth;
    }

    static void printHead()
    {
        std::printf("| what | cycles | heap after %d, KiB | bytes a cycle from then on | resident, KiB | ", warmUp);
        std::string line = "|---|---|---|---|---|";
        for (const char* const thing : countedThings()) {
            std::printf("%s | ", thing);
            line += "---|";
        }
        std::printf("|\n%s---|\n", line.c_str());
    }

    bool print(const Subject& subject, const Subject* reference, const Holdings& before, const Holdings& after,
        const Growth& growth) const
    {
        std::printf("| `%s` | %d | %.0f | %.1f | %+.0f | ", subject.name, m_cycles, before.heapBytes / 1024,
            growth.bytesPerCycle, (after.residentBytes - before.residentBytes) / 1024);
        for (std::size_t i = 0; i < after.counts.size(); ++i) {
            std::printf("%+ld | ", after.counts[i] - before.counts[i]);
        }
        const bool flat = isWithin(growth, Growth());
        const bool asReference = reference && isWithin(growth, m_growths.at(reference->name));
        if (flat) {
            std::printf("flat |\n");
        } else if (subject.isReference) {
            std::printf("grows, to compare with |\n");
        } else if (asReference) {
            std::printf("grows as `%s` |\n", reference->name);
        } else {
            std::printf("GROWS |\n");
        }
        std::fflush(stdout);
        return flat || subject.isReference || asReference;
    }

    int m_cycles;
    QWidget& m_parent;
    std::vector<Subject> m_subjects;
    std::map<std::string, Growth> m_growths;
};

int runSoak(int cycles, const std::vector<std::string>& names)
{
    const std::unique_ptr<morvane::ui::Shell> shell = nativeShell();
    std::optional<morvane::ui::ShellOverride> shellOverride;
    if (shell) {
        shellOverride.emplace(*shell);
    }
    QWidget parent;
    parent.show();
    Soak soak(cycles, parent);
    for (const std::string& name : names) {
        if (!soak.knows(name)) {
            std::fprintf(stderr, "unknown: %s\n", name.c_str());
            return 2;
        }
    }
    return soak.run(names) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        qputenv(variable, home.path().toUtf8());
    }
    const QString started = QDir::currentPath();
    QDir::setCurrent(home.path());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int cycles = argc > 1 ? std::atoi(argv[1]) : 10000;
    if (cycles < fewestCycles) {
        std::fprintf(stderr, "at least %d cycles are needed\n", fewestCycles);
        return 2;
    }
    const int result = runSoak(cycles, std::vector<std::string>(argv + std::min(argc, 2), argv + argc));
    QDir::setCurrent(started); // some systems cannot remove the current folder
    return result;
}
