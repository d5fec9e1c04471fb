#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check_repack.sh CMAKE WORK-DIR: whether packaging/repack makes the same archive of the same files, whatever their order in the
# directory, their times, the umask and the time zone were; and another archive of other files.
set -eu
cmake=$1 work=$2
repack=$(cd "$(dirname "$0")/../../packaging" && pwd)/repack

die() {
    printf 'check_repack: %s\n' "$*" >&2
    exit 1
}

# tree DIRECTORY TIME NAME...: files with the names, made in this order.
tree() {
    directory=$1/morvane
    time=$2
    mkdir -p "$directory/lib" "$directory/bin"
    shift 2
    for name in "$@"; do
        echo "content of $name" >"$directory/$name"
    done
    ln -s a.so "$directory/lib/link.so"
    printf '#!/bin/sh\n' >"$directory/bin/program"
    chmod u+x "$directory/bin/program"
    find "$directory" -exec touch -h -d "@$time" {} +
}

# archive DIRECTORY EXTENSION FLAGS [OPTION]: packs the files in the order of the directory.
archive() { (cd "$work/$1" && "$cmake" -E tar "$3" "$work/$1.$2" ${4:+"$4"} morvane); }

rm -rf "$work"
mkdir -p "$work"
(umask 022 && tree "$work/first" 1600000000 lib/a.so lib/b.so bin/b.txt)
(umask 077 && tree "$work/second" 1700000001 bin/b.txt lib/b.so lib/a.so)
(umask 022 && tree "$work/other" 1600000000 lib/a.so lib/b.so bin/c.txt)

export SOURCE_DATE_EPOCH=1500000000
extensions=tar.gz
if command -v zip >/dev/null; then
    extensions='tar.gz zip'
fi
for extension in $extensions; do
    flags=czf
    format=''
    if [ "$extension" = zip ]; then
        flags=cf
        format=--format=zip
    fi
    for name in first second other; do
        archive "$name" "$extension" "$flags" "$format"
    done
    ! cmp -s "$work/first.$extension" "$work/second.$extension" || die "$extension: nothing to even out"
    TZ=UTC sh "$repack" "$work/first.$extension"
    (umask 077 && TZ=Pacific/Auckland sh "$repack" "$work/second.$extension")
    sh "$repack" "$work/other.$extension"
    cmp "$work/first.$extension" "$work/second.$extension" || die "$extension: other bytes for the same files"
    ! cmp -s "$work/first.$extension" "$work/other.$extension" || die "$extension: the same bytes for other files"

    mkdir "$work/unpacked.$extension"
    (cd "$work/unpacked.$extension" && "$cmake" -E tar xf "$work/second.$extension")
    diff -r "$work/second/morvane" "$work/unpacked.$extension/morvane" || die "$extension: the files changed"
    [ -x "$work/unpacked.$extension/morvane/bin/program" ] || die "$extension: a program lost its permission"
    [ "$(stat -c %Y "$work/unpacked.$extension/morvane/lib/a.so")" = "$SOURCE_DATE_EPOCH" ] || die "$extension: another time"
done

command -v dpkg-deb >/dev/null || exit 0
# deb DIRECTORY SIZE: a package with the files, and with the size that CPack would give it.
deb() {
    mkdir -p "$work/$1/DEBIAN"
    printf 'Package: morvane\nVersion: 1\nArchitecture: all\nMaintainer: somebody <a@b.invalid>\nInstalled-Size: %s\nDescription: some\n' \
        "$2" >"$work/$1/DEBIAN/control"
    chmod 755 "$work/$1/DEBIAN"
    dpkg-deb -b "$work/$1" "$work/$1.deb" >/dev/null
}
deb first 100
deb second 200
deb other 100
! cmp -s "$work/first.deb" "$work/second.deb" || die 'deb: nothing to even out'
sh "$repack" "$work/first.deb" 2>/dev/null
(umask 077 && TZ=Pacific/Auckland sh "$repack" "$work/second.deb" 2>/dev/null)
sh "$repack" "$work/other.deb" 2>/dev/null
cmp "$work/first.deb" "$work/second.deb" || die 'deb: other bytes for the same files'
! cmp -s "$work/first.deb" "$work/other.deb" || die 'deb: the same bytes for other files'
size=$(dpkg-deb -f "$work/first.deb" Installed-Size)
[ "$size" = 9 ] || die "deb: Installed-Size is $size" # four files of less than a kibibyte, and the directories and links
