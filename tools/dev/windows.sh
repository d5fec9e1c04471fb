# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev windows" cross-builds for Windows and runs the tests under Wine. "./dev package windows" makes the ZIP.
# ./dev sources this file and provides the functions need, step, die, build and run_tests, and the variables qt_major and
# qt_suffix.

windows_run_packages='wine wine64 fonts-wine xvfb'
wine_root_packages="$windows_run_packages cmake fonts-dejavu"

windows_usage() {
    cat <<'TEXT'
usage: ./dev windows [--sdk DIR] [--wine-root] [ARGUMENTS]

  --sdk DIR    use this SDK (Qt, Boost.Filesystem and GoogleTest for MinGW-w64) instead of making one
  --wine-root  run the tests under the Wine of the Debian release that follows this machine's own, in a root of that
               release, except those that compile something
  ARGUMENTS    go to ctest (-R NAME, ...)

The first run makes the SDK, which takes about 15 minutes, for Qt 6 longer. Exit status 77 means skipped: the source
packages for the SDK cannot be reached. Each major version of Qt has an SDK and a build directory of its own:
"./dev --qt 6 windows".

--wine-root needs root, for making the root and for running in it. The root is kept in $XDG_CACHE_HOME/morvane/next, or
~/.cache/morvane/next. Exit status 77 then also means that there is no next release, or that the machine's apt sources do
not have it.
TEXT
}

windows_directory() { echo "build/windows$qt_suffix"; }

windows_used_sdk() { sed -n 's/^MORVANE_WINDOWS_SDK:PATH=//p' "$(windows_directory)/CMakeCache.txt"; }

windows_stop_wine() { packaging/windows/run-wine --home "$(windows_directory)/wine" --stop; }

# windows_sdk DIR: prints the SDK's directory; makes it when DIR is empty.
windows_sdk() {
    if [ -n "$1" ]; then
        [ -d "$1/lib/cmake/Qt${qt_major}Widgets" ] || die "not an SDK for Windows with Qt $qt_major: $1"
        (cd "$1" && pwd)
        return
    fi
    packaging/windows/make-sdk --qt "$qt_major"
}

# The SDK is part of the configuration, and so are the flags of the toolchain file, which CMake reads only once.
windows_made_with() {
    echo "$1"
    cat cmake/toolchains/mingw-w64.cmake
}

# windows_configure SDK: another SDK or toolchain file starts afresh.
windows_configure() {
    directory=$(windows_directory)
    if [ -f "$directory/CMakeCache.txt" ] && ! windows_made_with "$1" | cmp -s - "$directory/made-with"; then
        step "another SDK or toolchain: $directory starts afresh"
        windows_stop_wine
        rm -rf "$directory"
    fi
    mkdir -p "$directory"
    windows_made_with "$1" >"$directory/made-with"
    export MORVANE_WINDOWS_SDK="$1"
}

# windows_build [--sdk DIR]: the SDK, the configuration and the build. Ends with status 77 when there can be no SDK.
windows_build() {
    windows_prepare "$@"
    build windows
}

# windows_prepare [--sdk DIR]: the same without the build.
windows_prepare() {
    given=''
    if [ "${1:-}" = --sdk ]; then
        [ $# -ge 2 ] || die '--sdk wants a directory'
        given=$2
    fi
    # shellcheck disable=SC2046,SC2086 # the lists are to be split
    need $(packaging/windows/make-sdk --qt "$qt_major" --packages) $windows_run_packages qttools5-dev-tools
    if [ -z "$given" ] && [ ! -f "$(packaging/windows/make-sdk --qt "$qt_major" --print-path)/complete" ]; then
        step 'making the SDK for Windows, once (about 15 minutes)'
    fi
    status=0
    sdk=$(windows_sdk "$given") || status=$?
    [ "$status" = 0 ] || exit "$status"
    windows_configure "$sdk"
}

# Makes the root for --wine-root and sets wine_root.
windows_make_wine_root() {
    status=0
    release=$(tools/next-root release) || status=$?
    [ "$status" = 0 ] || exit "$status"
    # shellcheck disable=SC2086 # the list is to be split
    need $next_host_packages
    wine_root=${XDG_CACHE_HOME:-$HOME/.cache}/morvane/next/$release-wine
    # shellcheck disable=SC2086 # the list is to be split
    as_root tools/next-root make "$wine_root" "$release" $wine_root_packages
}

# windows_cmake_modules: where the modules of CMake are with which the build directory was configured; CTest reads them.
windows_cmake_modules() { sed -n 's/^CMAKE_ROOT:INTERNAL=//p' "$(windows_directory)/CMakeCache.txt"; }

# windows_run COMMAND [ARGUMENT...]: here, or in the root with the newer Wine.
windows_run() {
    if [ -z "$wine_root" ]; then
        "$@"
    else
        as_root tools/next-root run --see "$MORVANE_WINDOWS_SDK" --see "$(windows_cmake_modules)" \
            "$wine_root" "$(pwd)" "$(windows_directory)" "$@"
    fi
}

# The processes of a root end with the command that was run there, Wine's too.
windows_run_tests() {
    step "running the tests under $(windows_run wine --version 2>/dev/null)"
    # There is no compiler in the root.
    [ -z "$wine_root" ] || set -- --exclude-regex '^(consumer|checks)/' "$@"
    windows_run ctest --test-dir "$(pwd)/$(windows_directory)" --output-on-failure --no-tests=error -j "$(nproc)" "$@"
}

cmd_windows() {
    wine_root=''
    sdk_option=''
    with_wine_root=no
    while [ $# -gt 0 ]; do
        case $1 in
        --help | -h)
            windows_usage
            return
            ;;
        --sdk)
            [ $# -ge 2 ] || die '--sdk wants a directory'
            sdk_option=$2
            shift
            ;;
        --wine-root) with_wine_root=yes ;;
        *) break ;;
        esac
        shift
    done
    [ "$with_wine_root" = no ] || windows_make_wine_root
    windows_build ${sdk_option:+--sdk "$sdk_option"}
    status=0
    windows_run_tests "$@" || status=$?
    [ -n "$wine_root" ] || windows_stop_wine
    return "$status"
}

# package_windows [--sdk DIR]: the ZIP, for "./dev package". Without the option the SDK of the last build serves.
package_windows() {
    directory=$(windows_directory)
    used=''
    [ ! -f "$directory/CMakeCache.txt" ] || used=$(windows_used_sdk)
    if [ $# -eq 0 ] && [ -n "$used" ]; then
        set -- --sdk "$used"
    fi
    need zip
    package_set_time
    windows_build "$@"
    step 'packing the ZIP for Windows'
    cpack -G ZIP --config "$directory/CPackConfig.cmake" -B "$directory/packages" >"$directory/package.log" 2>&1 || {
        cat "$directory/package.log" >&2
        die 'cpack -G ZIP failed'
    }
    rm -rf "$directory/packages/_CPack_Packages"
    step "the ZIP is in $(pwd)/$directory/packages"
}
