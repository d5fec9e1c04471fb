# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev fuzz" runs the fuzzing harnesses. ./dev sources this file and provides the functions need, step, die
# and build.

fuzz_usage() {
    cat <<'TEXT'
usage: ./dev fuzz [SECONDS [HARNESS...]]

Runs each harness, or the ones that are named, for SECONDS (default 60). Inputs that reach something new are kept in
build/fuzz/work; the next run starts with them. An input that causes a failure is kept there, too. Copy it to
fuzz/corpus/HARNESS when the fault is corrected; then ./dev test tries it every time.
TEXT
}

cmd_fuzz() {
    case ${1:-} in
    -h | --help)
        fuzz_usage
        return
        ;;
    *[!0-9]*) die "not a number of seconds: $1" ;;
    esac
    seconds=${1:-60}
    [ $# -eq 0 ] || shift
    # shellcheck disable=SC2086
    need $build_packages $run_packages $fuzz_packages
    build fuzz
    step "fuzzing, $seconds seconds a harness"
    fuzz/run-all "build/fuzz$qt_suffix" build/fuzz/work "$seconds" "$@" || die 'an input caused a failure; see build/fuzz/work'
}
