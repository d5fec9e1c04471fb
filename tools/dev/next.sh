# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev test-next" runs the tests with the newer compiler and libraries of the next Debian release. ./dev
# sources this file and provides the functions need, step and as_root.

next_host_packages='mmdebstrap util-linux'

next_usage() {
    cat <<'TEXT'
usage: ./dev [--qt 5|6] test-next [ARGUMENTS]

Builds everything and runs every test with the compiler, Qt and Boost of the Debian release that follows this machine's
own, in a root of that release. The arguments go to ctest (-R NAME, ...). --qt selects the major version of Qt, which is 6
otherwise.

Needs root, for making the root and for running in it. The first run makes the root, with the machine's own apt sources;
it is kept in $XDG_CACHE_HOME/morvane/next, or ~/.cache/morvane/next. The build directory is in build/next. Exit status
77 means skipped: there is no next release, or the machine's apt sources do not have it.
TEXT
}

in_next() { as_root tools/next-root run "$next_root" "$(pwd)" "$next_build" "$@"; }

next_build_and_test() {
    step "configuring $next_build/cmake"
    in_next cmake --preset dev -B "$next_build/cmake" -DMORVANE_QT_MAJOR="$qt_major" --log-level=WARNING
    in_next dpkg-query -W g++ cmake libboost-dev libgtest-dev "libqt${qt_major}core*"
    step "building $next_build/cmake"
    in_next cmake --build "$next_build/cmake" -j "$(nproc)"
    step 'running the tests'
    in_next ctest --test-dir "$next_build/cmake" --output-on-failure --no-tests=error -j "$(nproc)" "$@"
}

cmd_test_next() {
    case ${1:-} in
    -h | --help)
        next_usage
        return
        ;;
    esac
    status=0
    release=$(tools/next-root release) || status=$?
    [ "$status" = 0 ] || exit "$status"
    # shellcheck disable=SC2086 # the list is to be split
    need $next_host_packages
    next_root=${XDG_CACHE_HOME:-$HOME/.cache}/morvane/next/$release-qt$qt_major
    next_build=$(pwd)/build/next/qt$qt_major
    mkdir -p "$next_build"
    # ccache, because several tests build Morvane once more.
    # shellcheck disable=SC2086 # the lists are to be split
    as_root tools/next-root make "$next_root" "$release" $build_packages $run_packages $test_packages $desktop_packages ccache
    next_build_and_test "$@"
}
