#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check_the_check.sh COMPILER WORK-DIR: whether check.sh finds changes of a small library, and names them.
set -eu
compiler=$1 work=$2
here=$(cd "$(dirname "$0")" && pwd)

command -v abidw >/dev/null && command -v abidiff >/dev/null || {
    echo 'SKIPPED: abidw and abidiff are not installed (abigail-tools)'
    exit 77
}

die() {
    printf 'check_the_check: %s\n' "$*" >&2
    exit 1
}

# build NAME [OPTIONS]: the library in WORK-DIR/NAME.
build() {
    mkdir "$work/$1"
    library=$work/$1/libsample.so
    shift
    "$compiler" -std=c++17 -Og -g2 -fPIC -shared "$@" -o "$library" "$here/sample/Sample.cpp"
}

check() { sh "$here/check.sh" "$@" "$work/headers" "$work/work" "$library" >"$work/output" 2>&1; }

# fails_with TEXT NAME OPTION...: the library with OPTION differs, and the output of the check has TEXT.
fails_with() {
    text=$1
    shift
    build "$@"
    if check "$work/conditions" "$work/description"; then
        die "$1: not found"
    fi
    grep -q "$text" "$work/output" || {
        cat "$work/output" >&2
        die "$1: found, but nothing says \"$text\""
    }
}

rm -rf "$work"
mkdir -p "$work"
echo "$here/sample/Sample.h" >"$work/headers"
echo 'a compiler' >"$work/conditions"
echo 'another compiler' >"$work/other_conditions"

build first
check --renew "$work/conditions" "$work/description" || die 'no description'
build same
check "$work/conditions" "$work/description" || die 'the same library differs'

fails_with 'm_new' member -DSAMPLE_WITH_MEMBER
fails_with 'Removed.*function' removal -DSAMPLE_WITHOUT_FUNCTION
grep -q "Sample::vanishing" "$work/output" || die 'the function that was removed is not named'
fails_with 'Sample::added' addition -DSAMPLE_WITH_FUNCTION
fails_with 'virtualBetween' virtual_function -DSAMPLE_WITH_VIRTUAL
fails_with 'Sample::result' result -DSAMPLE_WITH_OTHER_RESULT
grep -q 'binary interface changed: sample' "$work/output" || die 'nothing says which library changed'

build again
code=0
check "$work/other_conditions" "$work/description" || code=$?
[ "$code" = 77 ] || die "with another compiler: $code instead of 77"
fails_with 'compiled without -g2' without_classes -g1
