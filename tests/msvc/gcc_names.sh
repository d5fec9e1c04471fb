#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# No source that Windows compiles uses names that only GCC, clang or POSIX systems know, and tools/msvc/gcc-names finds
# them. Runs in the project's root.
set -eu
command -v clang++ >/dev/null || {
    echo 'skipped: clang++ is missing (Debian package clang)'
    exit 77
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failed=0

# check found|clean NAME: with a source of standard input.
check() {
    cat >"$scratch/$2.cpp"
    answer=clean
    tools/msvc/gcc-names "$scratch/$2.cpp" >"$scratch/output" || answer=found
    [ "$answer" = "$1" ] || {
        echo "$2: $answer instead of $1"
        failed=1
    }
}
check found attribute <<'TEXT'
__attribute__((noinline)) int one();
TEXT
check found builtin <<'TEXT'
int first(unsigned value) { return __builtin_ctz(value); }
TEXT
check found wide_integer <<'TEXT'
__int128 product;
TEXT
check found assembler <<'TEXT'
void pause() { asm("pause"); }
TEXT
check found function_name <<'TEXT'
const char* name() { return __PRETTY_FUNCTION__; }
TEXT
check found type_of <<'TEXT'
int one = 1;
__typeof__(one) two = 2;
TEXT
check found posix_type <<'TEXT'
#include <unistd.h>
ssize_t length = 0;
TEXT
check found behind_a_macro <<'TEXT'
#define NO_INLINE __attribute__((noinline))
NO_INLINE int one();
TEXT
check clean for_other_compilers <<'TEXT'
#ifdef __GNUC__
__attribute__((noinline)) int one();
#endif
#ifndef _WIN32
ssize_t length = 0;
#endif
TEXT
check clean comment_and_text <<'TEXT'
const char* text = "__attribute__ \" asm"; // not asm
TEXT

# The folders that only Linux compiles are left out.
find common/src compat designer examples tests \( -name '*.h' -o -name '*.cpp' \) \
    ! -path 'tests/e2e/*' ! -path 'tests/faults/*' ! -path 'tests/hands/*' ! -name '*Linux.cpp' |
    sort >"$scratch/sources"
[ "$(wc -l <"$scratch/sources")" -gt 300 ] || {
    echo 'there are hardly any sources'
    failed=1
}
xargs tools/msvc/gcc-names <"$scratch/sources" || failed=1
exit $failed
