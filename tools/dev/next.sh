# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev test-next" runs the tests with the newer compiler and libraries of the next Debian release. ./dev
# sources this file and provides the functions need, step, die and as_root.

next_host_packages='mmdebstrap util-linux'

next_usage() {
    cat <<'TEXT'
usage: ./dev test-next [ARGUMENTS]

Builds everything and runs every test with the compiler, Qt and Boost of the Debian release that follows this machine's
own, in a root of that release. The arguments go to ctest (-R NAME, ...). MORVANE_QT_MAJOR in the environment chooses the
Qt, 6 (default) or 5.

Needs root, for making the root and for running in it. The first run makes the root, with the machine's own apt sources;
it is kept in $XDG_CACHE_HOME/morvane/next, or ~/.cache/morvane/next. The build directory is in build/next. Exit status
77 means skipped: there is no next release, or the machine's apt sources do not have it.
TEXT
}

# The packages of "./dev test" for the chosen Qt. ccache is there because several tests build Morvane once more.
next_packages() {
    # shellcheck disable=SC2086 # one a line
    printf '%s\n' $build_packages $run_packages $test_packages $desktop_packages ccache |
        if [ "$1" = 6 ]; then
            sed 's/^qtbase5/qt6-base/; s/^qttools5/qt6-tools/'
        else
            cat
        fi
}

in_next() { as_root tools/next-root run "$next_root" "$(pwd)" "$next_build" "$@"; }

next_build_and_test() {
    step "configuring $next_build/cmake"
    in_next cmake --preset dev -B "$next_build/cmake" -DMORVANE_QT_MAJOR="$qt" --log-level=WARNING
    in_next dpkg-query -W g++ cmake "$(next_packages "$qt" | grep "^qt.*base.*-dev$" | head -n 1)" libboost-dev libgtest-dev
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
    qt=${MORVANE_QT_MAJOR:-6}
    case $qt in
    5 | 6) ;;
    *) die "MORVANE_QT_MAJOR is $qt; 5 and 6 are possible" ;;
    esac
    status=0
    release=$(tools/next-root release) || status=$?
    [ "$status" = 0 ] || exit "$status"
    # shellcheck disable=SC2086 # the list is to be split
    need $next_host_packages
    next_root=${XDG_CACHE_HOME:-$HOME/.cache}/morvane/next/$release-qt$qt
    next_build=$(pwd)/build/next/qt$qt
    # shellcheck disable=SC2046 # the list is to be split
    as_root tools/next-root make "$next_root" "$release" $(next_packages "$qt")
    next_build_and_test "$@"
}
