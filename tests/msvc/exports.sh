#!/bin/sh
# usage: exports.sh DIRECTORY LIBRARY HEADER... -- CHECK [ARGUMENT...]
#
# LIBRARY, which CHECK builds in DIRECTORY, exports all that its public HEADERs declare and it defines. The names of its
# internal classes, taken for public ones, are found not to be exported.
set -eu
directory=$1
library=$2
shift 2
headers=''
while [ "$1" != -- ]; do
    headers="$headers $1"
    shift
done
shift
"$@" "$library"

# shellcheck disable=SC2086 # the list is to be split
tools/msvc/exports "$directory/bin/$library.dll" $headers

# shellcheck disable=SC2086 # the list is to be split
[ "$(printf '%s\n' $headers | wc -l)" -ge 8 ] || {
    echo 'there are hardly any public headers'
    exit 1
}
[ "$library" = morvane-ui ] || exit 0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp common/src/ui/qt/dialogs/native/NativeControls_p.h "$scratch/NativeControls.h"
cp common/src/ui/qt/util/GuiThread_p.h "$scratch/GuiThread.h"
for name in 'NativeControls NativeControls::addButton' 'GuiThread morvane::ui::expectGuiThread'; do
    if tools/msvc/exports "$directory/bin/$library.dll" "$scratch/${name%% *}.h" >"$scratch/answer"; then
        echo "$name is taken for exported"
        exit 1
    fi
    grep -qF "${name#* }(" "$scratch/answer" || {
        echo "does not name ${name#* }"
        exit 1
    }
done
