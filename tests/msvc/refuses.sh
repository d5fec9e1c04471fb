#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# usage: refuses.sh NAME CHECK [ARGUMENT...]
#
# CHECK, which builds targets, accepts refused/NAME.cpp, and refuses it with its fault, for the reason that it gives itself.
set -eu
here=$(dirname "$0")
name=$1
shift
reason=$(sed -n 's,^// refused: ,,p' "$here/refused/$name.cpp")
[ -n "$reason" ] || {
    echo "$name.cpp does not give the reason (// refused: ...)"
    exit 1
}

"$@" "refused_${name}_sound"
status=0
output=$("$@" "refused_${name}_faulty" 2>&1) || status=$?
[ "$status" != 0 ] || {
    echo "$name.cpp is accepted with its fault"
    exit 1
}
case $output in
*"$reason"*) echo "refused: $reason" ;;
*)
    printf 'refused for another reason than "%s":\n%s\n' "$reason" "$output"
    exit 1
    ;;
esac
