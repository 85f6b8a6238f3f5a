#!/usr/bin/env bash
# What both layouts of an installation consist of: all of it, and nothing else. Arguments: the build folder,
# the source folder.
set -uo pipefail
build=$1
source=$2
. "$(dirname "$0")/checks.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Whoever builds a package may be the only one who reads new files.
umask 077

install_as() { cmake --install "$build" --prefix "$work/$1" --component "$1" >"$work/log" 2>&1; }
shared="GPL.TXT
LGPL.TXT
languages/lang_jp.qm
languages/lang_kr.qm
quorinConverter.chm
sample/README.md
sample/cart_jp_orders.csv
sample/cart_kr_evening.csv
sample/cart_kr_morning.csv
sample/cart_kr_orders.csv
sample/quorinConverter.dat
sample/shop_orders.csv
sample/shop_payments.csv"

begin "the folder layout is one folder with the program and all it needs"
holds install_as folder
same "files" "$(printf '%s\n' "$shared" quorinConverter | LC_ALL=C sort)" "$(files "$work/folder")"

begin "the system layout has launcher, program, desktop entry, icons and documents in their places"
holds install_as system
sizes=(16 22 24 32 48 64 128 256 512)
same "files" "$(
    {
        sed 's|^|share/quorin-converter/|' <<<"$shared"
        for size in "${sizes[@]}"; do
            echo "share/icons/hicolor/${size}x$size/apps/quorin-converter.png"
        done
        echo "bin/quorin-converter
lib/quorin-converter/quorinConverter
share/applications/quorin-converter.desktop
share/doc/quorin-converter/changelog.gz
share/doc/quorin-converter/copyright
share/icons/hicolor/scalable/apps/quorin-converter.svg
share/lintian/overrides/quorin-converter
share/man/man1/quorin-converter.1.gz
share/metainfo/example.velmora.quorinconverter.metainfo.xml"
    } | LC_ALL=C sort
)" "$(files "$work/system")"

begin "no installed file is empty"
same "empty files" "" "$(find "$work/folder" "$work/system" -type f -empty)"

begin "everybody can read every file, and nobody but the owner can write"
same "programs" "folder/quorinConverter
system/bin/quorin-converter
system/lib/quorin-converter/quorinConverter" \
    "$(cd "$work" && find folder system -type f -perm 755 | LC_ALL=C sort)"
same "other files" "" "$(find "$work/folder" "$work/system" -type f ! -perm 644 ! -perm 755)"

begin "the licences are the third versions of the LGPL and the GPL"
for folder in folder system/share/quorin-converter; do
    holds grep -q "GNU LESSER GENERAL PUBLIC LICENSE" "$work/$folder/LGPL.TXT"
    holds grep -q "Version 3, 29 June 2007" "$work/$folder/LGPL.TXT"
    holds grep -q "GNU GENERAL PUBLIC LICENSE" "$work/$folder/GPL.TXT"
    holds grep -q "Version 3, 29 June 2007" "$work/$folder/GPL.TXT"
done

begin "every picture has the size of its folder"
for size in "${sizes[@]}"; do
    png=$work/system/share/icons/hicolor/${size}x$size/apps/quorin-converter.png
    # A PNG file has width and height as two big-endian numbers from its 17th byte on.
    same "$size" "$(printf '%08x%08x' "$size" "$size")" "$(od -An -tx1 -j16 -N8 "$png" | tr -d ' \n')"
done

begin "the launcher finds what it copies where the installation puts it"
data=$work/system/share/quorin-converter
mkdir "$work/home"
cp "$work/system/lib/quorin-converter/quorinConverter" "$work/program"
printf '#!/bin/sh\nexit 7\n' >"$work/system/lib/quorin-converter/quorinConverter"
env -u QUORIN_CONVERTER_FOLDER -u DISPLAY -u WAYLAND_DISPLAY HOME="$work/home" "$work/system/bin/quorin-converter"
same "exit status" 7 $?
for file in languages/lang_jp.qm languages/lang_kr.qm quorinConverter.chm; do
    holds cmp "$data/$file" "$work/home/QuorinConverter/$file"
done
holds diff -r "$data/sample" "$work/home/QuorinConverter/sample"
holds cmp "$source/sample/quorinConverter.dat" "$work/home/QuorinConverter/quorinConverter.dat"

all_cases
