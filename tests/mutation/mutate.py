"""Changes the library's sources in one small way at a time and sees whether a test notices.

    ./dev mutate [--sample N] [--seed N] [--files PATTERN] [--list]

Works in a copy below build/mutation. Each change (a mutant) is compiled into the library and the test programs that are
mapped to its file; it is killed when it does not compile, when a test fails or when the tests do not end. The survivors
stand in build/mutation/survivors.txt.
"""

import argparse
import fnmatch
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "source"
BUILD = WORK / "build"

DIALOGS = "ui/qt/dialogs/"
CONTROLS = "ui/qt/controls/"
UTIL = "ui/qt/util/"

# Which test programs know a file; the first pattern that fits counts. Programs without widgets come first: they are
# quick and kill most.
TESTS = [
    ("host/*", ["test_host"]),
    ("property/*", ["test_property"]),
    (CONTROLS + "DigitSearch*", ["test_spinbox_numbers"]),
    (CONTROLS + "ScientificNumberText*", ["test_spinbox_numbers"]),
    (CONTROLS + "*SpinBox*", ["test_spinbox"]),
    (CONTROLS + "*ComboBox*", ["test_combobox_autofilter"]),
    (CONTROLS + "AutoFilter*", ["test_combobox_autofilter"]),
    (CONTROLS + "*", ["test_elided_text"]),
    (UTIL + "Selection*", ["test_table_copy"]),
    (UTIL + "*Copy*", ["test_table_copy"]),
    (UTIL + "DelayedWaitCursor*", ["test_table_copy"]),
    (UTIL + "*", ["test_util"]),
    (DIALOGS + "shell/ShellText*", ["shell-text-test"]),
    (DIALOGS + "shell/*", ["shell-test", "widget-shell-test", "shell-contract", "test_extendedwinfiledialog"]),
    (DIALOGS + "NameFilterText*", ["test_namefiltertext"]),
    (DIALOGS + "SaveFileExtension*", ["test_savefileextension"]),
    (DIALOGS + "WriteAccessProbe*", ["test_writeaccessprobe", "test_system_call_faults"]),
    (DIALOGS + "DefaultSaveFile*", ["test_savefilemessages"]),
    (DIALOGS + "SaveFile*", ["test_savefiledialog", "test_savefilehandlerflow"]),
    (DIALOGS + "FilePath*", ["test_savefileextension", "test_writeaccessprobe", "test_savefiledialog"]),
    (DIALOGS + "LaunchFileDialog*", ["test_launchfiledialog"]),
    (DIALOGS + "ExtendedWinFileDialog*", ["test_extendedwinfiledialog"]),
    (DIALOGS + "ExtendedFileDialog*", ["test_extendedfiledialog", "test_launchfiledialog"]),
    (DIALOGS + "QExtendedFileDialog*", ["test_qextendedfiledialog"]),
]

# Compiled for Windows only, or declarations that have nothing to change.
SKIPPED = ["*WindowsShell*", "*ShellInterfaces.h", "*ShellTypes.h"]

REPLACEMENTS = [
    (r"(?<![=!<>])==(?!=)", "!="),
    (r"!=", "=="),
    (r"(?<= )<=(?= )", "<"),
    (r"(?<= )>=(?= )", ">"),
    (r"(?<= )<(?= )", "<="),
    (r"(?<= )>(?= )", ">="),
    (r"&&", "||"),
    (r"(?<= )\|\|(?= )", "&&"),
    (r"(?<= )\+(?= )", "-"),
    (r"(?<= )-(?= )", "+"),
    (r"\+\+", "--"),
    (r"(?<= )\+=(?= )", "-="),
    (r"(?<= )-=(?= )", "+="),
    (r"\btrue\b", "false"),
    (r"\bfalse\b", "true"),
    (r"(?<![\w.\"'])0(?![\w.\"'])", "1"),
    (r"(?<![\w.\"'])1(?![\w.\"'])", "2"),
    (r"(?<= )&(?= )", "|"),
    (r"(?<=[(\s])!(?=[\w(])", ""),
    (r"\bbreak;", ";"),
    (r"\bcontinue;", ";"),
]
CONDITION = re.compile(r"\b(if|while) \((?!const |auto )(.+)\) \{$")
STATEMENT = re.compile(r"^\s+(?!return|break|continue|using|static_assert|typedef|struct|class|const |auto |throw|delete )"
                       r"[\w:>.\-*()&\[\]]+(\(.*\)| [+\-|&]?= .+);$")


class Mutant:
    def __init__(self, path, number, old, new):
        self.path, self.number, self.old, self.new = path, number, old, new

    def __str__(self):
        return f"{self.path}:{self.number}\n    - {self.old.strip()}\n    + {self.new.strip()}"


def without_texts(line):
    """The line with strings, characters and comments blanked, so that positions stay."""
    blanked = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', lambda m: "\x01" * len(m.group()), line)
    return re.sub(r"(//.*|/\*.*?\*/|^\s*\*.*|^\s*/\*.*)", lambda m: "\x01" * len(m.group()), blanked)


def mutants_of(path):
    found = []
    lines = (ROOT / "common/src" / path).read_text().splitlines()
    platform = 0
    for number, line in enumerate(lines, 1):
        code = without_texts(line)
        if re.match(r"\s*#\s*if.*_WIN32", code):
            platform += 1
        elif re.match(r"\s*#\s*(else|endif)", code) and platform:
            platform -= 1
        if platform or re.match(r"\s*(#|template|using|namespace|static_assert|friend|typedef)", code):
            continue
        for pattern, replacement in REPLACEMENTS:
            for match in re.finditer(pattern, code):
                found.append(Mutant(path, number, line, line[:match.start()] + replacement + line[match.end():]))
        match = CONDITION.search(code)
        if match:
            inner = line[match.start(2):match.end(2)]
            found.append(Mutant(path, number, line, line[:match.start(2)] + f"!({inner})" + line[match.end(2):]))
        if STATEMENT.match(code) and "expectGuiThread" not in code:
            found.append(Mutant(path, number, line, re.match(r"\s*", line).group() + ";"))
    return found


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


def prepare():
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, capture_output=True, text=True,
                            check=True)
    for name in listed.stdout.splitlines():
        source, target = ROOT / name, COPY / name
        if source.is_file() and (not target.exists() or source.read_bytes() != target.read_bytes()):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)
    if not (BUILD / "build.ninja").exists():
        # Programs need not be linked again when only the code inside the library changes.
        subprocess.run(["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                        "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                        "-DMORVANE_BUILD_EXAMPLES=OFF"], check=True, stdout=subprocess.DEVNULL)


def build(programs, jobs):
    return subprocess.run(["ninja", "-C", BUILD, f"-j{jobs}", *programs], capture_output=True, text=True)


def failing_program(programs, limit):
    for program in programs:
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
        try:
            result = subprocess.run([BUILD / "bin" / program, "--gtest_brief=1", "--gtest_fail_fast=1"], cwd=WORK,
                                    env=environment, capture_output=True, timeout=limit)
        except subprocess.TimeoutExpired:
            return program + " (did not end)"
        if result.returncode != 0:
            return program
    return None


def verdict(mutant, jobs, limit):
    path = COPY / "common/src" / mutant.path
    original = path.read_text()
    lines = original.splitlines(keepends=True)
    lines[mutant.number - 1] = mutant.new + "\n"
    path.write_text("".join(lines))
    programs = tests_for(mutant.path)
    try:
        if build(programs, jobs).returncode != 0:
            return "does not compile"
        return failing_program(programs, limit)
    finally:
        path.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sample", type=int, default=100, help="how many mutants to try; 0 for all")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--files", default="*", help="pattern below common/src")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--timeout", type=int, default=240, help="seconds for a test program")
    parser.add_argument("--list", action="store_true", help="only print the mutants")
    options = parser.parse_args()

    mutants = [mutant for path in sources(options.files) for mutant in mutants_of(path)]
    total = len(mutants)
    random.Random(options.seed).shuffle(mutants)
    if options.sample:
        mutants = mutants[:options.sample]
    if options.list:
        for mutant in mutants:
            print(mutant)
        print(f"{total} mutants")
        return 0

    prepare()
    programs = sorted({program for mutant in mutants for program in tests_for(mutant.path)})
    result = build(programs, options.jobs)
    if result.returncode != 0:
        sys.exit(result.stdout[-3000:])
    broken = failing_program(programs, options.timeout)
    if broken:
        sys.exit(f"{broken} fails without any change")

    killed, invalid, survivors = 0, 0, []
    started = time.monotonic()
    for number, mutant in enumerate(mutants, 1):
        outcome = verdict(mutant, options.jobs, options.timeout)
        if outcome == "does not compile":
            invalid += 1
        elif outcome:
            killed += 1
        else:
            survivors.append(mutant)
        print(f"{number}/{len(mutants)} {outcome or 'SURVIVED'}: {mutant}", flush=True)
    tried = killed + len(survivors)
    (WORK / "survivors.txt").write_text("".join(f"{mutant}\n" for mutant in survivors))
    print(f"{total} mutants, {len(mutants)} tried, {invalid} did not compile; of the other {tried}, {killed} were killed "
          f"({100 * killed / max(tried, 1):.0f} %) in {time.monotonic() - started:.0f} s")
    return 0


if __name__ == "__main__":
    sys.exit(main())
