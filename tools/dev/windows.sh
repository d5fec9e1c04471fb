# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev windows" cross-builds for Windows and runs the tests under Wine. "./dev package windows" makes the ZIP.
# ./dev sources this file and provides the functions need, step, die, build and run_tests, and the variables qt_major and
# qt_suffix.

windows_run_packages='wine wine64 fonts-wine xvfb'

windows_usage() {
    cat <<'TEXT'
usage: ./dev windows [--sdk DIR] [ARGUMENTS]

  --sdk DIR  use this SDK (Qt, Boost.Filesystem and GoogleTest for MinGW-w64) instead of making one
  ARGUMENTS  go to ctest (-R NAME, ...)

The first run makes the SDK, which takes about 15 minutes, for Qt 6 longer. Exit status 77 means skipped: the source
packages for the SDK cannot be reached. Each major version of Qt has an SDK and a build directory of its own:
"./dev --qt 6 windows".
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

# The SDK is part of the configuration: another one starts afresh.
windows_configure() {
    if [ -f "$(windows_directory)/CMakeCache.txt" ] && [ "$(windows_used_sdk)" != "$1" ]; then
        step "another SDK: $(windows_directory) starts afresh"
        windows_stop_wine
        rm -rf "$(windows_directory)"
    fi
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
    need $(packaging/windows/make-sdk --qt "$qt_major" --packages) $windows_run_packages
    if [ -z "$given" ] && [ ! -f "$(packaging/windows/make-sdk --qt "$qt_major" --print-path)/complete" ]; then
        step 'making the SDK for Windows, once (about 15 minutes)'
    fi
    status=0
    sdk=$(windows_sdk "$given") || status=$?
    [ "$status" = 0 ] || exit "$status"
    windows_configure "$sdk"
}

cmd_windows() {
    case ${1:-} in
    --help | -h)
        windows_usage
        return
        ;;
    --sdk)
        windows_build "$@"
        shift 2
        ;;
    *) windows_build ;;
    esac
    status=0
    run_tests windows "$@" || status=$?
    windows_stop_wine
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
