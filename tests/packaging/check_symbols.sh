#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check_symbols.sh PACKAGE VERSION DIRECTORY WORK-DIR: whether the libraries in DIRECTORY export what
# packaging/debian/PACKAGE.symbols lists, and whether a name that is missing or new is noticed.
set -eu
package=$1 version=$2 libraries=$3 work=$4
debian=$(cd "$(dirname "$0")/../../packaging/debian" && pwd)

command -v dpkg-gensymbols >/dev/null || {
    echo 'SKIPPED: dpkg-gensymbols is not installed (dpkg-dev)'
    exit 77
}

die() {
    printf 'check_symbols: %s\n' "$*" >&2
    exit 1
}

rm -rf "$work"
mkdir -p "$work/debian"
cp "$debian/make-symbols" "$debian/$package.symbols" "$work/debian"
make_symbols() { sh "$work/debian/make-symbols" "$package" "$version" "$libraries" "$work/symbols" >"$work/output" 2>&1; }

make_symbols || {
    cat "$work/output" >&2
    die "the libraries export other names than packaging/debian/$package.symbols lists; CONTRIBUTING.md says what to do"
}
! grep -q '(c++)' "$work/symbols" || die 'the result is a template'
grep -q "^libmorvane-ui.*\.so\.[0-9]* $package #MINVER#" "$work/symbols" || die 'libmorvane-ui is not in the result'

# fails_for WHAT NAME: after a change of the list.
fails_for() {
    ! make_symbols || die "$1 is not noticed"
    grep -q "$2" "$work/output" || die "$1 is noticed, but $2 is not named"
}
list=$work/debian/$package.symbols
sed '/LaunchFileDialog/d' "$debian/$package.symbols" >"$list"
fails_for 'a new name' LaunchFileDialog
sed 's/^ (c++)"LaunchFile/ (c++)"removedFunction()@Base" 1.0.0\n&/; s/^ (c++)"morvane::ui::LaunchFile/ (c++)"removedFunction()@Base" 1.0.0\n&/' \
    "$debian/$package.symbols" >"$list"
fails_for 'a removed name' 'MISSING.*removedFunction'

# --renew keeps the versions of the names that are listed, and enters the others with the new version.
sed '/LaunchFileDialog/d' "$debian/$package.symbols" >"$list"
sh "$work/debian/make-symbols" --renew "$package" 99.0 "$libraries"
[ "$(grep -c ' 99\.0$' "$list")" = "$(grep -c LaunchFileDialog "$debian/$package.symbols")" ] || die 'renewing does not keep the versions'
grep -q 'LaunchFileDialog.* 99\.0$' "$list" || die 'renewing does not enter the new name'
