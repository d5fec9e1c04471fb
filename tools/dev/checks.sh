# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# Commands of ./dev that check the code with tools: coverage, tidy, ubsan, valgrind, soak, mutate. ./dev sources this file
# and provides the functions and the lists of packages.

cmd_coverage() {
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages gcovr
    build coverage
    coverage=build/coverage$qt_suffix
    find "$coverage" -name '*.gcda' -delete
    run_tests coverage "$@"
    step "counting; lines of $coverage/report say what was not reached"
    coverage_report
}

# Branches that only an exception takes are left out: the compiler makes one for nearly every call.
coverage_report() {
    gcovr --root . --object-directory "$coverage" --filter common/src/ --exclude-throw-branches \
        --exclude-unreachable-branches --txt "$coverage/report" --json "$coverage/report.json" --print-summary \
        --fail-under-line 95 --fail-under-branch 85 "$coverage"
}

cmd_tidy() {
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages $tidy_packages
    build dev
    step 'who includes whom'
    sh tests/checks/layers.sh
    tidy_clang "$@"
    tidy_cppcheck
}

tidy_sources() { git ls-files 'common/src/*.cpp' | grep -v 'WindowsShell'; }

tidy_clang() {
    step 'clang-tidy'
    if [ $# -gt 0 ]; then printf '%s\n' "$@"; else tidy_sources; fi |
        xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p "build/dev$qt_suffix"
}

tidy_cppcheck() {
    step 'cppcheck'
    cppcheck --quiet --error-exitcode=1 --enable=warning,style,performance,portability --inline-suppr --library=qt \
        --std=c++17 --suppressions-list=tools/cppcheck-suppressions.txt -j "$(nproc)" \
        -I common/src -I "build/dev$qt_suffix/generated" common/src
}

cmd_ubsan() {
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages $fuzz_packages
    build ubsan
    run_tests ubsan "$@"
}

# The programs without widgets. With widgets, memcheck would report only what Qt and its fonts do.
valgrind_programs='test_host test_property test_namefiltertext test_savefileextension test_spinbox_numbers
    test_writeaccessprobe test_shell'

cmd_valgrind() {
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages valgrind
    # shellcheck disable=SC2086 # the list is to be split
    [ $# -gt 0 ] || set -- $valgrind_programs
    build dev "$@"
    for program in "$@"; do
        step "memcheck of $program"
        QT_QPA_PLATFORM=offscreen valgrind --quiet --error-exitcode=9 --leak-check=full --show-leak-kinds=definite \
            --errors-for-leak-kinds=definite --suppressions=tools/valgrind.supp \
            "build/dev$qt_suffix/bin/$program" --gtest_brief=1 --gtest_filter="$(valgrind_filter "$program")"
    done
}

# Leaves out the cases that measure time or memory, and those that are too slow under memcheck.
valgrind_filter() {
    case $1 in
    test_host) echo '-*Process*:*InOneProcess*:*Processes*' ;;
    test_spinbox_numbers) echo '-*andom*:*Time*:*ast*:*very*:*AndItsLoop*' ;;
    test_namefiltertext) echo '-*veryShortText*:*andomTexts*' ;;
    test_savefileextension) echo '-*andomTexts*' ;;
    test_writeaccessprobe) echo '-*DescriptorsLeft*' ;; # memcheck wants some for itself
    test_shell) echo 'ShellText*:TypedNames*:TypedPatterns*' ;;
    *) echo '*' ;;
    esac
}

cmd_soak() {
    if [ "${1:-}" = --windows ]; then
        shift
        soak_windows "$@"
        return
    fi
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages xvfb xauth
    build dev morvane-soak
    step 'opening and closing every dialog and widget on an X server of its own'
    xvfb-run -a "build/dev$qt_suffix/bin/morvane-soak" "$@"
}

# With its own directory for Wine. It is stopped at the end, and tests that run at the same time go on.
soak_windows() {
    windows_prepare
    build windows morvane-soak
    step "opening and closing every dialog and widget under Wine, the native dialogs being the system's own"
    windows=build/windows$qt_suffix
    trap 'packaging/windows/run-wine --home "$windows/soak-wine" --stop' EXIT
    trap 'exit 143' INT TERM HUP
    QT_QPA_PLATFORM=windows packaging/windows/run-wine --home "$windows/soak-wine" --sdk "$MORVANE_WINDOWS_SDK" \
        --path "$windows/bin" --timeout 172800 -- "$windows/bin/morvane-soak.exe" "$@"
}

cmd_mutate() {
    # shellcheck disable=SC2086
    need $build_packages $run_packages $test_packages python3
    step 'changing the sources one place at a time, in a copy'
    python3 tests/mutation/mutate.py "$@"
}
