# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

"""Changes the library's sources in one small way at a time and sees whether a test notices.

    ./dev mutate [--sample N] [--seed N] [--files PATTERN] [--again FILE] [--list]

Works in a copy below build/mutation. Most changes (mutants) are compiled in together and one of them is chosen by an
environment variable when a test program starts; those whose line has no form for that are compiled in one by one. For each
mutant the test programs that are mapped to its file run. It is killed when it does not compile, when a test fails or when
the tests do not end. The survivors stand in build/mutation/survivors.txt: first those that nobody knew of, with a remark
where no test reaches the line, then those that known_survivors.txt gives a reason for.
"""

import argparse
import collections
import concurrent.futures
import fnmatch
import os
import pathlib
import pickle
import random
import re
import shutil
import subprocess
import sys
import threading
import time

import mutants as mutation

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "source"
BUILD = WORK / "build"
ALONE_FILE = WORK / "alone.txt"  # what the compiler did not take together with others, to start with the next time
REACH_FILE = WORK / "reach.pickle"
SWITCH_FILE = WORK / "MutantSwitch.h"
KNOWN_FILE = ROOT / "tests/mutation/known_survivors.txt"

DIALOGS = "ui/qt/dialogs/"
CONTROLS = "ui/qt/controls/"
UTIL = "ui/qt/util/"

# Which test programs know a file; the first pattern that fits counts. Programs without widgets come first: they are
# quick and kill most.
TESTS = [
    ("host/*", ["test_host"]),
    ("property/*", ["test_property"]),
    ("testing/*", ["test_recordingshell", "test_shell_contract", "test_launchfiledialog", "test_extendedwinfiledialog"]),
    (CONTROLS + "DigitSearch*", ["test_spinbox_numbers"]),
    (CONTROLS + "ScientificNumberText*", ["test_spinbox_numbers"]),
    (CONTROLS + "*SpinBox*", ["test_spinbox"]),
    (CONTROLS + "*ComboBox*", ["test_combobox_autofilter"]),
    (CONTROLS + "AutoFilter*", ["test_combobox_autofilter"]),
    (CONTROLS + "EntryMatcher*", ["test_combobox_autofilter"]),
    (CONTROLS + "EventResender*", ["test_combobox_autofilter"]),
    (CONTROLS + "StepSignals*", ["test_spinbox"]),
    (CONTROLS + "NumberLineValidator*", ["test_spinbox"]),
    (CONTROLS + "TypedNumber*", ["test_spinbox"]),
    (CONTROLS + "WheelNotches*", ["test_spinbox"]),
    (CONTROLS + "*", ["test_elided_text", "test_accessibility"]),
    (UTIL + "Selection*", ["test_table_copy"]),
    (UTIL + "*Copy*", ["test_table_copy"]),
    (UTIL + "DelayedWaitCursor*", ["test_util", "test_table_copy"]),
    (UTIL + "ModalArrowCursor*", ["test_qextendedfiledialog"]),
    (UTIL + "FilePath*", ["test_savefileextension", "test_writeaccessprobe", "test_savefiledialog"]),
    (UTIL + "*", ["test_util"]),
    (DIALOGS + "qtdialog/FileDialogAccess*", ["test_accessibility", "test_qextendedfiledialog", "test_widget_shell"]),
    (DIALOGS + "qtdialog/FileDialogLayout*", ["test_qextendedfiledialog", "test_widget_shell"]),
    (DIALOGS + "shell/ShellText*", ["test_shell"]),
    (DIALOGS + "shell/Typed*", ["test_shell"]),
    (DIALOGS + "shell/*", ["test_shell", "test_widget_shell", "test_widget_shell_desktop", "test_shell_contract",
                           "test_extendedwinfiledialog"]),
    (DIALOGS + "native/NameFilterText*", ["test_namefiltertext"]),
    (DIALOGS + "native/*", ["test_extendedwinfiledialog"]),
    (DIALOGS + "save/SaveFileExtension*", ["test_savefileextension"]),
    (DIALOGS + "save/WriteAccessProbe*", ["test_writeaccessprobe", "test_system_call_faults"]),
    (DIALOGS + "save/*", ["test_savefiledialog"]),
    (DIALOGS + "DefaultSaveFile*", ["test_savefiledialog"]),
    (DIALOGS + "SaveFile*", ["test_savefiledialog"]),
    (DIALOGS + "LaunchFileDialog*", ["test_launchfiledialog"]),
    (DIALOGS + "ExtendedWinFileDialog*", ["test_extendedwinfiledialog"]),
    (DIALOGS + "ExtendedFileDialog*", ["test_extendedfiledialog", "test_launchfiledialog"]),
    (DIALOGS + "QExtendedFileDialog*", ["test_qextendedfiledialog", "test_launchfiledialog", "test_accessibility"]),
]

# Compiled for Windows only, or declarations that have nothing to change.
SKIPPED = ["*WindowsShell*", "*ShellInterfaces.h", "*ShellTypes.h"]


# Included by every file that holds mutants: tells which one is on, and writes down which ones are asked for.
SWITCH = r"""#pragma once
#include <cstdio>
#include <cstdlib>
inline int morvaneChosenMutant()
{
    static const int chosen = [] {
        const char* const text = std::getenv("MORVANE_MUTANT");
        return text != nullptr ? std::atoi(text) : 0;
    }();
    return chosen;
}
inline std::FILE* morvaneMutantLog()
{
    static std::FILE* const log = [] {
        const char* const name = std::getenv("MORVANE_MUTANT_LOG");
        return name != nullptr ? std::fopen(name, "a") : nullptr;
    }();
    return log;
}
inline bool morvaneMutant(int mutant)
{
    static bool told[65536] = {};
    if (morvaneMutantLog() != nullptr && !told[mutant]) {
        told[mutant] = true;
        std::fprintf(morvaneMutantLog(), "%d\n", mutant);
        std::fflush(morvaneMutantLog());
    }
    return morvaneChosenMutant() == mutant;
}
"""


def tests_for(path):
    for pattern, programs in TESTS:
        if fnmatch.fnmatch(path, pattern):
            return programs
    return []


def sources(wanted):
    base = ROOT / "common/src"
    for path in sorted(base.rglob("*")):
        name = path.relative_to(base).as_posix()
        if path.suffix in (".cpp", ".h") and fnmatch.fnmatch(name, wanted) and tests_for(name) \
                and not any(fnmatch.fnmatch(name, pattern) for pattern in SKIPPED):
            yield name


def write(path, text):
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def prepare(sources_with_mutants):
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, capture_output=True, text=True,
                            check=True)
    names = [name for name in listed.stdout.splitlines() if (ROOT / name).is_file()]
    for name in names:
        target = COPY / name
        if target.exists() and name.removeprefix("common/src/") in sources_with_mutants:
            continue  # written when the mutants are put in
        if not target.exists() or (ROOT / name).read_bytes() != target.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, target)
    write(SWITCH_FILE, SWITCH)
    # Programs need not be linked again when only the code inside the library changes.
    subprocess.run(["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -w", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DMORVANE_BUILD_EXAMPLES=OFF",
                    "-DMORVANE_BUILD_QUICKLY=ON", "-DMORVANE_WARNINGS_AS_ERRORS=OFF"], check=True, stdout=subprocess.DEVNULL)


def build(programs, jobs, errors=0):
    """`errors` is how many it takes to give up; 0 goes on with whatever can be built all the same."""
    return subprocess.run(["ninja", "-C", BUILD, "-k", str(errors), f"-j{jobs}", *programs], capture_output=True, text=True)


def run_program(program, cases, mutant, limit, **variables):
    """Whether the program's cases succeed in time."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", MORVANE_MUTANT=str(mutant), **variables)
    chosen = ":".join(cases)
    if len(chosen) < 100000:  # more does not fit into a variable; then all of the program's cases run
        environment["GTEST_FILTER"] = chosen
    try:
        result = subprocess.run([BUILD / "bin" / program, "--gtest_brief=1", "--gtest_fail_fast=1"], cwd=WORK,
                                env=environment, capture_output=True, timeout=limit)
    except subprocess.TimeoutExpired:
        return False
    return result.returncode == 0


def cases_of(program):
    listed = subprocess.run([BUILD / "bin" / program, "--gtest_list_tests"], capture_output=True, text=True, check=True,
                            env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    cases, suite = [], ""
    for line in listed.stdout.splitlines():
        text = line.split("#")[0].rstrip()
        if not line.startswith(" "):
            suite = text if text.endswith(".") else ""
        elif suite:
            cases.append(suite + text.strip())
    return cases


def newest_program(names):
    libraries = [file for file in BUILD.rglob("*.so*") if file.is_file()]
    return max(file.stat().st_mtime for file in libraries + [BUILD / "bin" / name for name in names])


class Programs:
    """The cases of the test programs, how long each takes, and which mutants it reaches."""

    quick = 0.4  # seconds; cases that take longer have their turn when the others found nothing

    def __init__(self, names, jobs):
        self.seconds = {}
        self.reaching = collections.defaultdict(list)
        self.unlogged = collections.defaultdict(list)
        if REACH_FILE.exists() and REACH_FILE.stat().st_mtime > newest_program(names):
            self.seconds, self.reaching, self.unlogged = pickle.loads(REACH_FILE.read_bytes())
        else:
            self.measure_all(names, jobs)
            REACH_FILE.write_bytes(pickle.dumps((self.seconds, self.reaching, self.unlogged)))

    def measure_all(self, names, jobs):
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            list(pool.map(lambda each: self.measure(*each), [(name, case) for name in names for case in cases_of(name)]))

    def measure(self, program, case):
        log = WORK / f"log-{threading.get_ident()}"
        log.unlink(missing_ok=True)
        started = time.monotonic()
        logged = run_program(program, [case], 0, 600, MORVANE_MUTANT_LOG=str(log))
        self.seconds[program, case] = time.monotonic() - started
        if logged:
            for mutant in set(log.read_text().split()) if log.exists() else ():
                self.reaching[program, int(mutant)].append(case)
        elif run_program(program, [case], 0, 600):
            self.unlogged[program].append(case)  # it counts what the program writes, or the machine is busy
        else:
            raise RuntimeError(f"{case} of {program} fails without any change")
        log.unlink(missing_ok=True)

    def reaches(self, programs, mutant):
        return any(self.cases(program, mutant) for program in programs)

    def cases(self, program, mutant):
        return self.reaching.get((program, mutant), []) + self.unlogged[program]

    def failing(self, programs, mutant):
        """The first of the programs that fails with the mutant on, or nothing."""
        for want_quick in (True, False):
            for program in programs:
                cases = [case for case in self.cases(program, mutant)
                         if (self.seconds[program, case] <= self.quick) == want_quick]
                # Twice again: that kills nothing.
                if cases and not self.succeeds(program, cases, mutant) and not self.succeeds(program, cases, mutant):
                    return program
        return None

    def failing_alone(self, programs, neighbours):
        """
        The same where the one mutant that there is was compiled in. What it is reached by is not known: those that reach
        its neighbours come first.
        """
        likely = {(program, case) for program in programs for mutant in neighbours
                  for case in self.reaching.get((program, mutant), []) if self.seconds[program, case] <= self.quick}
        for want_likely in (True, False):
            for program in programs:
                cases = [case for name, case in self.seconds
                         if name == program and ((program, case) in likely) == want_likely]
                if cases and not self.succeeds(program, cases, 0) and not self.succeeds(program, cases, 0):
                    return program
        return None

    def succeeds(self, program, cases, mutant):
        return run_program(program, cases, mutant, 10 + 4 * sum(self.seconds[program, case] for case in cases))


class Copy:
    """The sources in the copy with any number of mutants compiled in."""

    def __init__(self, paths):
        self.originals = {path: (ROOT / "common/src" / path).read_text() for path in paths}

    def embed(self, mutants):
        """Puts all in that can be chosen when the program runs; gives those that cannot."""
        left = []
        lines = {path: text.splitlines(keepends=True) for path, text in self.originals.items()}
        places = collections.defaultdict(list)
        for mutant in mutants:
            places[mutant.path, mutant.number].append(mutant)
        for (path, number), group in places.items():
            line = mutation.embedded(group)
            if line is None:
                left += group
            else:
                lines[path][number - 1] = line + "\n"
        for path, changed in lines.items():
            start = f'#include "{SWITCH_FILE}"\n#line 1\n' if "".join(changed) != self.originals[path] else ""
            write(COPY / "common/src" / path, start + "".join(changed))
        return left

    def replace(self, mutant):
        lines = self.originals[mutant.path].splitlines(keepends=True)
        lines[mutant.number - 1] = mutant.new_line() + "\n"
        write(COPY / "common/src" / mutant.path, "".join(lines))

    def restore(self):
        self.embed([])


def lines_in_error(output):
    """(file, line) for all that the compiler or moc complains about, the places that led there included."""
    pattern = re.compile(r"common/src/([\w./]+):(\d+):(?:\d+:)?\s+(?:error|Parse error|required from|in)")
    return {(match.group(1), int(match.group(2))) for match in pattern.finditer(output)}


def near_error(mutants, output):
    """Those in the lines before one that is in error: a variable that is declared within a branch is missed later."""
    places = lines_in_error(output)
    return [mutant for mutant in mutants
            if any(path == mutant.path and 0 <= number - mutant.number <= 12 for path, number in places)]


def build_embedded(copy, mutants, programs, jobs):
    """Compiles as many mutants in together as the compiler takes; gives those and the others."""
    known = ALONE_FILE.read_text() if ALONE_FILE.exists() else ""
    alone = [mutant for mutant in mutants if f"{mutant}\n" in known]
    together = [mutant for mutant in mutants if mutant not in alone]
    for _ in range(12):
        left = copy.embed(together)
        alone += left
        together = [mutant for mutant in together if mutant not in left]
        result = build(programs, jobs)
        ALONE_FILE.write_text("".join(f"{mutant}\n" for mutant in alone))
        if result.returncode == 0:
            return together, alone
        places = lines_in_error(result.stdout)
        wrong = [mutant for mutant in together if (mutant.path, mutant.number) in places] or \
            near_error(together, result.stdout)
        if not wrong:
            sys.exit("the mutants that do not compile are not found:\n" + result.stdout)
        alone += wrong
        together = [mutant for mutant in together if mutant not in wrong]
    sys.exit("the mutants still do not compile together")


def known_survivors():
    """
    The reason for each mutant that may survive. The file has paragraphs: a reason in lines that begin with '#', then
    mutants, each as its file and its two lines. Their line numbers are left out, so that the sources may move; one that
    looks the same at several places of a file is there as often as it may survive.
    """
    reasons, reason, lines = collections.defaultdict(list), "", []
    for line in KNOWN_FILE.read_text().splitlines():
        if line.startswith("#"):
            reason = line[1:].strip() if lines or not reason else reason + " " + line[1:].strip()
            lines = []
        elif line.strip():
            lines.append(line.strip())
            if len(lines) % 3 == 0:
                reasons[tuple(lines[-3:])].append(reason)
    return reasons


def without_number(mutant):
    return (mutant.path, *(line.strip() for line in str(mutant).splitlines()[1:]))


class Report:
    def __init__(self, total):
        self.total, self.killed, self.invalid, self.survivors, self.done = total, 0, 0, [], 0
        self.known = known_survivors()
        self.lock = threading.Lock()

    def add(self, mutant, outcome, reached):
        with self.lock:
            self.done += 1
            if outcome == "does not compile":
                self.invalid += 1
            elif outcome:
                self.killed += 1
            else:
                reasons = self.known[without_number(mutant)]
                reason = reasons.pop() if reasons else ""
                self.survivors.append((mutant, f"\n    # {reason}" if reason else "" if reached else " (not reached)"))
                outcome = "survived, as is known" if reason else "SURVIVED" if reached else "SURVIVED (not reached)"
            print(f"{self.done}/{self.total} {outcome}: {mutant}", flush=True)

    def end(self, seconds):
        self.survivors.sort(key=lambda each: ("#" in each[1], each[0].path, each[0].number))
        (WORK / "survivors.txt").write_text("".join(f"{mutant}{remark}\n" for mutant, remark in self.survivors))
        tried = self.killed + len(self.survivors)
        known = sum("#" in remark for _, remark in self.survivors)
        print(f"{self.done} mutants tried, {self.invalid} did not compile; of the other {tried}, {self.killed} were killed "
              f"({100 * self.killed / max(tried, 1):.1f} %) in {seconds:.0f} s; {known} of the {len(self.survivors)} "
              "survivors are known")


def try_together(mutants, runner, report, jobs):
    def one(mutant):
        programs = tests_for(mutant.path)
        report.add(mutant, runner.failing(programs, mutant.id), runner.reaches(programs, mutant.id))

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(one, mutants))


def try_alone(mutants, others, copy, runner, report, jobs):
    for mutant in sorted(mutants, key=lambda each: (each.path, each.number)):
        copy.replace(mutant)
        programs = tests_for(mutant.path)
        if build(programs, jobs, errors=1).returncode != 0:
            outcome = "does not compile"
        else:
            near = [each.id for each in others if each.path == mutant.path and abs(each.number - mutant.number) <= 15]
            outcome = runner.failing_alone(programs, near)
        write(COPY / "common/src" / mutant.path, copy.originals[mutant.path])
        report.add(mutant, outcome, True)


def all_mutants(options):
    found = [mutant for path in sources(options.files)
             for mutant in mutation.mutants_of(path, (ROOT / "common/src" / path).read_text())]
    for number, mutant in enumerate(found, 1):
        mutant.id = number
    return found


def chosen_among(mutants, options):
    found = list(mutants)
    if options.again:
        again = pathlib.Path(options.again).read_text()
        found = [mutant for mutant in found if str(mutant) + "\n" in again or str(mutant) + " (" in again]
    random.Random(options.seed).shuffle(found)
    return found[:options.sample] if options.sample else found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sample", type=int, default=100, help="how many mutants to try; 0 for all")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--files", default="*", help="pattern below common/src")
    parser.add_argument("--again", help="only the survivors in this file")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--list", action="store_true", help="only print the mutants and how they are compiled in")
    options = parser.parse_args()

    everything = all_mutants(options)
    mutants = chosen_among(everything, options)
    if options.list:
        for mutant in mutants:
            print(mutant)
        print(f"{len(mutants)} mutants")
        return 0

    paths = sorted({mutant.path for mutant in mutants})
    prepare(paths)
    programs = sorted({program for mutant in mutants for program in tests_for(mutant.path)})
    copy = Copy(paths)
    report = Report(len(mutants))
    started = time.monotonic()
    together, alone = build_embedded(copy, mutants, programs, options.jobs)
    print(f"{len(together)} compiled in together, {len(alone)} one by one", flush=True)
    runner = Programs(programs, options.jobs)
    try_together(together, runner, report, options.jobs)
    copy.restore()
    if alone:
        build(programs, options.jobs)
        try_alone(alone, everything, copy, runner, report, options.jobs)
    report.end(time.monotonic() - started)
    return 0


if __name__ == "__main__":
    sys.exit(main())
