# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev abi". ./dev sources this file and provides the functions need, step and build.

cmd_abi() {
    # shellcheck disable=SC2086 # the lists are to be split
    need $build_packages $run_packages $test_packages
    build dev morvane-abi
    step 'entered in tests/abi and packaging/debian; git diff shows what changed'
}
