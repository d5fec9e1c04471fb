#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# usage: exports.sh FILE TARGET HEADER... -- CHECK [ARGUMENT...]
#
# The library FILE, which CHECK builds as TARGET, exports all that its public HEADERs declare and it defines. The names of its
# internal classes, taken for public ones, are found not to be exported.
set -eu
library=$1
target=$2
shift 2
headers=''
while [ "$1" != -- ]; do
    headers="$headers $1"
    shift
done
shift
"$@" "$target"

# shellcheck disable=SC2086 # the list is to be split
tools/msvc/exports "$library" $headers

# shellcheck disable=SC2086 # the list is to be split
[ "$(printf '%s\n' $headers | wc -l)" -ge 8 ] || {
    echo 'there are hardly any public headers'
    exit 1
}
[ "$target" = morvane-ui ] || exit 0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp common/src/ui/qt/dialogs/native/NativeControls_p.h "$scratch/NativeControls.h"
cp common/src/ui/qt/util/GuiThread_p.h "$scratch/GuiThread.h"
for name in 'NativeControls NativeControls::addButton' 'GuiThread morvane::ui::expectGuiThread'; do
    if tools/msvc/exports "$library" "$scratch/${name%% *}.h" >"$scratch/answer"; then
        echo "$name is taken for exported"
        exit 1
    fi
    grep -qF "${name#* }(" "$scratch/answer" || {
        echo "does not name ${name#* }"
        exit 1
    }
done
