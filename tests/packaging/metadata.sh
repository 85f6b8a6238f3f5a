#!/usr/bin/env bash
# What desktops and package managers are told: valid, and the same everywhere. Arguments: the source folder,
# the project's version.
set -uo pipefail
source=$1
version=$2
packaging=$source/packaging
. "$(dirname "$0")/checks.sh"
entry=$packaging/desktop/quorin-converter.desktop
component=$packaging/desktop/example.velmora.quorinconverter.metainfo.xml

begin "the desktop entry is valid"
same "desktop-file-validate" "" "$(desktop-file-validate --warn-kde "$entry" 2>&1)"

begin "the desktop entry speaks Korean and Japanese"
for key in Name GenericName Comment Keywords; do
    for language in ko ja; do
        holds grep -q "^$key\[$language\]=." "$entry"
    done
done

begin "the component is valid; only the maker's reserved domain is worth a remark"
same "appstreamcli" "" \
    "$(appstreamcli validate --no-net --pedantic "$component" | grep -E '^[EWIP]:' | grep -v cid-maybe-not-rdns)"
holds appstreamcli validate --no-net "$component" >/dev/null

begin "every text of the component is in three languages"
# A line that begins a text in English is followed by its two translations.
texts=$(grep -oE '<(name|summary|p|li|developer_name)( xml:lang="..")?>' "$component" | grep -v developer_name)
same "Korean texts" "$(grep -vc lang <<<"$texts")" "$(grep -c '"ko"' <<<"$texts")"
same "Japanese texts" "$(grep -vc lang <<<"$texts")" "$(grep -c '"ja"' <<<"$texts")"

begin "entry and component name each other, and have the same names"
same "desktop entry" "$(basename "$entry")" \
    "$(sed -n 's|.*<launchable type="desktop-id">\(.*\)</launchable>|\1|p' "$component")"
same "component" "$(sed -n 's|^  <id>\(.*\)</id>|\1|p' "$component").metainfo.xml" "$(basename "$component")"
same "name" "$(sed -n 's/^Name=//p' "$entry")" "$(sed -n 's|^  <name>\(.*\)</name>|\1|p' "$component")"
for language in ko ja; do
    same "name ($language)" "$(sed -n "s/^Name\[$language\]=//p" "$entry")" \
        "$(sed -n "s|^  <name xml:lang=\"$language\">\(.*\)</name>|\1|p" "$component")"
done

begin "the name is the one that the program shows"
window=$(sed -n '/windowTitle/{n;s|.*<string>\(.*\)</string>|\1|p}' "$source/app/mainwindow.ui")
same "Korean name" "$window" "$(sed -n 's/^Name\[ko\]=//p' "$entry")"
same "Japanese name" \
    "$(sed -n "/<source>$window</{n;s|.*<translation>\(.*\)</translation>|\1|p;q}" \
        "$source/resources/translations/lang_jp.ts")" "$(sed -n 's/^Name\[ja\]=//p' "$entry")"

begin "the version is the same everywhere"
same "component" "$version" "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$component" | head -n 1)"
same "changelog" "quorin-converter ($version)" "$(head -n 1 "$packaging/debian/changelog" | grep -o '^[^)]*)')"
same "manual page" "Quorin Converter $version" "$(grep -o 'Quorin Converter [0-9][^"]*' "$packaging/debian/quorin-converter.1" | head -n 1)"
same "program, where it has a number of its own" "" "$(grep -rnE 'setApplicationVersion\(.*"[0-9.]+"' \
    "$source/app" | grep -vF "\"$version\"")"

begin "the day of the release is the same everywhere"
day=$(sed -n 's/.*<release version.* date="\([^"]*\)".*/\1/p' "$component" | head -n 1)
same "changelog" "$day" "$(date -u -d "$(sed -n 's/^ -- .*>  //p' "$packaging/debian/changelog" | head -n 1)" +%Y-%m-%d)"
same "manual page" "$day" "$(sed -n 's/^\.TH [^ ]* 1 \([^ ]*\) .*/\1/p' "$packaging/debian/quorin-converter.1")"

all_cases
