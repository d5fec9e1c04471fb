# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev msvc-check" compiles with clang as Microsoft's compiler would. ./dev sources this file and provides the
# functions need, configure and run_tests.

msvc_usage() {
    cat <<'TEXT'
usage: ./dev [--qt 5|6] msvc-check [ARGUMENTS]

Compiles the libraries, the plugin for Qt Designer, the examples and the tests with clang as Microsoft's compiler would,
and links them with lld-link. Then makes sure that the check refuses what it is for. Nothing of it can run. The arguments
go to ctest (-R NAME, ...). "./dev test" does the same. docs/guides/microsoft-compiler.md says what remains unknown.
TEXT
}

cmd_msvc_check() {
    case ${1:-} in
    -h | --help)
        msvc_usage
        return
        ;;
    esac
    # shellcheck disable=SC2086 # the lists are to be split
    need $build_packages $test_packages $msvc_packages
    configure dev
    run_tests dev -L msvc "$@"
}
