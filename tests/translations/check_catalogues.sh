#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check_catalogues.sh LRELEASE WORK-DIR: whether each catalogue has a translation of each text of the library and of nothing
# else, and whether this check notices a text that is new, gone or not translated. Runs in the project's root.
set -eu
tools=$(dirname "$1")
work=$2
lupdate=$tools/lupdate
if [ ! -x "$lupdate" ]; then
    echo 'SKIPPED: lupdate of Qt Linguist is not installed (qttools5-dev-tools or qt6-l10n-tools)'
    exit 77
fi
rm -rf "$work"
mkdir -p "$work"

# faults CATALOGUE SOURCE...: prints what is wrong.
faults() {
    copy=$work/$(basename "$1")
    cp "$1" "$copy"
    shift
    "$lupdate" -silent -locations none -I common/src "$@" -ts "$copy" >"$work/log" 2>&1 || cat "$work/log"
    grep 'lacks Q_OBJECT' "$work/log" || true
    grep -B 2 -E '<translation[^>]*type="|<translation></translation>' "$copy" || true
    # The places for names are the same in both.
    awk '
        /<source>/ { source = places($0); inside = "source" }
        /<translation/ { inside = "translation" ; translation = "" }
        inside == "source" && !/<source>/ { source = source places($0) }
        inside == "translation" { translation = translation places($0) }
        /<\/translation>/ { if (sorted(source) != sorted(translation)) print "other places for names: " $0; inside = "" }
        function places(line,   found) {
            found = ""
            while (match(line, /%[0-9]/)) { found = found substr(line, RSTART, 2); line = substr(line, RSTART + 2) }
            return found
        }
        function sorted(text,   i, result) {
            result = ""
            for (i = 1; i <= 9; ++i) if (index(text, "%" i)) result = result i
            return result
        }' "$copy"
}

failed=0
for catalogue in common/translations/*.ts; do
    found=$(faults "$catalogue" common/src compat)
    [ -z "$found" ] || {
        printf '%s:\n%s\n' "$catalogue" "$found"
        failed=1
    }
done

# What the check must notice.
expect_fault() {
    [ -n "$(faults "$2" $3)" ] || {
        echo "the check does not notice $1"
        failed=1
    }
}
sample=common/translations/morvane_de.ts
printf 'QString text = QCoreApplication::translate("Other", "A new text");\n' >"$work/new.cpp"
expect_fault 'a text that is new' $sample "common/src compat $work/new.cpp"
expect_fault 'texts that are gone' $sample common/src/host
mkdir "$work/changed"
sed 's,<translation>[^<]*</translation>,<translation></translation>,' $sample >"$work/changed/morvane_xx.ts"
expect_fault 'texts without a translation' "$work/changed/morvane_xx.ts" 'common/src compat'
sed '/<translation>/s/%1/%3/' $sample >"$work/changed/morvane_xy.ts"
expect_fault 'places that differ' "$work/changed/morvane_xy.ts" 'common/src compat'
[ "$failed" = 0 ] && echo 'all texts are translated'
exit $failed
