# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# shellcheck shell=sh disable=SC2154 # the lists of packages are in ./dev
# The command "./dev package" makes binary packages and checks that they can be installed, used and removed. ./dev sources
# this file and provides the functions need, step and die.

package_build_packages='dpkg-dev doxygen file pkg-config'
package_check_packages='mmdebstrap'

package_usage() {
    cat <<'TEXT'
usage: ./dev package [--no-check]
       ./dev package windows [--no-check] [--sdk DIR]

Makes the .deb packages (run time and development) and a .tar.gz in build/package/packages, or with --qt 6 in
build/package-qt6/packages. Then builds them again in another directory, and the bytes must be the same. Then installs
the .deb files in a fresh root made for that, builds and runs a small program there, and removes them again. That needs
root; it takes a few minutes and fetches packages with the machine's own apt sources. --no-check leaves out both. The
packages for Qt 5 and those for Qt 6 can be installed side by side; when both have been made, that is tried, too.

"windows" makes the ZIP for Windows, twice as well. "./dev package" makes it, too, once, when build/windows is there.
TEXT
}

# The same time for everything that goes into a package, so that the same commit always gives the same bytes.
package_set_time() {
    [ -n "${SOURCE_DATE_EPOCH:-}" ] || SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || date +%s)
    export SOURCE_DATE_EPOCH
}

package_configure() {
    # With the flags of a distribution's packages, without debug information and file names of this machine. CMake would
    # overwrite the RPATH of the build when it installs a library, but leave its length.
    flags=$(dpkg-buildflags --get CXXFLAGS)
    link_flags=$(dpkg-buildflags --get LDFLAGS)
    cmake -S . -B "$package" -G Ninja -DMORVANE_QT_MAJOR="$qt_major" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
        -DCMAKE_CXX_FLAGS="$flags -g0 -ffile-prefix-map=$(pwd)=." -DCMAKE_SHARED_LINKER_FLAGS="$link_flags" \
        -DMORVANE_BUILD_TESTS=OFF -DMORVANE_BUILD_EXAMPLES=OFF -DMORVANE_BUILD_DESIGNER=ON -DMORVANE_BUILD_TESTING_LIBRARY=ON \
        -DMORVANE_WITH_CTK=OFF -DMORVANE_WITH_QXT=OFF -DCMAKE_BUILD_WITH_INSTALL_RPATH=ON >"$package.log" 2>&1 || {
        cat "$package.log" >&2
        die 'configuring failed'
    }
}

package_linux() {
    step 'building the packages'
    package=build/package$qt_suffix
    mkdir -p build
    rm -rf "$package/packages"
    package_set_time
    package_configure
    cmake --build "$package"
    cmake --build "$package" --target morvane-docs
    for generator in DEB TGZ; do
        cpack -G "$generator" --config "$package/CPackConfig.cmake" -B "$package/packages" >"$package.log" 2>&1 || {
            cat "$package.log" >&2
            die "cpack -G $generator failed"
        }
    done
    rm -rf "$package/packages/_CPack_Packages"
    step "the packages are in $(pwd)/$package/packages"
}

# package_compare DIRECTORY [ARGUMENT...]: builds the packages of DIRECTORY a second time, with these arguments: from a copy of
# the sources in another directory, with other file times, umask, time zone and language. They must be the same, byte for byte.
package_compare() {
    step 'building the packages again, in another directory'
    directory=$1
    shift
    copy=$(mktemp -d "${TMPDIR:-/tmp}/morvane-again.XXXXXX")
    mkdir "$copy/another-directory"
    git ls-files -z | xargs -0 cp --parents -t "$copy/another-directory"
    (
        cd "$copy/another-directory"
        umask 027
        TZ=Pacific/Auckland LC_ALL=C ./dev --no-install --qt "$qt_major" package "$@" --no-check
    ) >"$directory.log" 2>&1 || {
        tail -n 40 "$directory.log" >&2
        die "the second build failed; it is in $copy"
    }
    different=''
    for file in "$directory/packages"/*; do
        cmp -s "$file" "$copy/another-directory/$directory/packages/$(basename "$file")" ||
            different="$different $(basename "$file")"
    done
    [ -z "$different" ] || die "the second build, in $copy, gives other bytes:$different"
    rm -rf "$copy"
    step "both builds are the same, byte for byte: $(cd "$directory/packages" && echo *)"
}

package_check() {
    step 'trying the packages in a fresh root'
    other=build/package
    [ "$qt_major" != 5 ] || other=build/package-qt6
    set -- "$package/packages"
    [ ! -d "$other/packages" ] || set -- "$@" "$other/packages"
    as_root sh packaging/check-debs "$@"
}

cmd_package_windows() {
    check=yes
    sdk_option=''
    while [ $# -gt 0 ]; do
        case $1 in
        --no-check) check=no ;;
        --sdk)
            [ $# -ge 2 ] || die '--sdk wants a directory'
            sdk_option=$2
            shift
            ;;
        *) die "unknown argument: $1" ;;
        esac
        shift
    done
    package_windows ${sdk_option:+--sdk "$sdk_option"}
    [ "$check" = no ] || package_compare "$(windows_directory)" windows --sdk "$MORVANE_WINDOWS_SDK"
}

cmd_package() {
    check=yes
    case ${1:-} in
    --help | -h)
        package_usage
        return
        ;;
    windows)
        command -v package_windows >/dev/null || die 'there is no package for Windows yet'
        shift
        cmd_package_windows "$@"
        return
        ;;
    --no-check) check=no ;;
    ?*) die "unknown argument: $1" ;;
    esac
    # shellcheck disable=SC2086 # the lists are to be split
    need $build_packages $package_build_packages $designer_packages
    package_linux
    if [ -d "build/windows$qt_suffix" ] && command -v package_windows >/dev/null; then
        package_windows
    fi
    [ "$check" = yes ] || return 0
    package_compare "$package"
    need "$package_check_packages"
    package_check
}
