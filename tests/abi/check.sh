#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check.sh [--renew] CONDITIONS DESCRIPTIONS HEADERS WORK-DIR LIBRARY...
#
# Compares libraries with the committed descriptions of their binary interface: the exported symbols, the classes with their
# sizes and members, and the virtual functions. Every difference is an error, also an addition: only what is in the
# description is noticed when it vanishes again. --renew writes the descriptions instead.
#
# CONDITIONS is a file that names the compiler, the architecture and so on. The directory DESCRIPTIONS has these lines, too,
# from the time when the descriptions were made. If the two differ, a comparison would say nothing (exit code 77). HEADERS is
# a file with one public header in each line: classes that no public header declares are left out.
set -eu

renew=no
if [ "$1" = --renew ]; then
    renew=yes
    shift
fi
conditions=$1 descriptions=$2 headers=$3 work=$4
shift 4
here=$(cd "$(dirname "$0")" && pwd)

skip() {
    printf 'SKIPPED: %s\n' "$*"
    [ "$renew" = no ] || exit 1
    exit 77
}

# describe LIBRARY OUTPUT
describe() {
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names --no-elf-needed \
        --type-id-style hash --drop-private-types --drop-undefined-syms --exported-interfaces-only \
        --suppressions "$here/only-morvane.suppr" --headers-dir "$work/headers" --out-file "$2.long" "$1"
    # The paths of the sources depend on the build directory.
    sed "s/^ *//; s| path='\(\.\./\)*| path='|" "$2.long" >"$2"
    rm "$2.long"
    grep -q '<class-decl [^>]*size-in-bits' "$2" || {
        echo "$1 was compiled without -g2: nothing says what its classes are"
        exit 1
    }
}

# difference OLD NEW: prints the changes; fails if there are any.
difference() {
    abidiff --harmless --no-show-locs "$1" "$2"
}

command -v abidw >/dev/null && command -v abidiff >/dev/null || skip 'abidw and abidiff are not installed (abigail-tools)'
rm -rf "$work"
mkdir -p "$work/headers"
xargs -d '\n' cp -t "$work/headers" <"$headers"
{
    cat "$conditions"
    abidw --version
} >"$work/made-with.txt"
if [ "$renew" = yes ]; then
    mkdir -p "$descriptions"
    cp "$work/made-with.txt" "$descriptions/made-with.txt"
elif ! cmp -s "$work/made-with.txt" "$descriptions/made-with.txt"; then
    diff "$descriptions/made-with.txt" "$work/made-with.txt" || true
    skip "the descriptions in $(basename "$descriptions") were made with something else (<) than this build (>)"
fi

changed=''
for library in "$@"; do
    name=$(basename "$library" | sed 's/^lib//; s/\.so.*//')
    describe "$library" "$work/$name.abi"
    if [ "$renew" = yes ]; then
        cp "$work/$name.abi" "$descriptions/$name.abi"
    else
        difference "$descriptions/$name.abi" "$work/$name.abi" || changed="$changed $name"
    fi
done
[ -n "$changed" ] || exit 0
printf '\nThe binary interface changed:%s. CONTRIBUTING.md says what may change; "./dev abi" enters it.\n' "$changed"
exit 1
