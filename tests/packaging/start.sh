#!/usr/bin/env bash
# A new user's first start from the desktop menu, in three languages: the installation as it is, in a folder of
# its own, started by the command of its desktop entry on a virtual display. Arguments: the build folder, the
# source folder.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ $# -eq 2 ]; then
    exec "$2/tests/drive/with-display" "$here/$(basename "$0")" "$1" "$2" on-display
fi
build=$1
. "$here/checks.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Nobody is asked for the latest version: behind this door nobody listens.
export https_proxy=http://127.0.0.1:9
# The new user has settings of nobody.
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME QUORIN_CONVERTER_FOLDER LC_MESSAGES LANG LANGUAGE

begin "the system layout can be installed"
holds cmake --install "$build" --prefix "$work/installed" --component system >"$work/log" 2>&1
entry=$work/installed/share/applications/quorin-converter.desktop
command=$(sed -n 's/^Exec=//p' "$entry")
program=$work/installed/lib/quorin-converter/quorinConverter

# Not every machine has these locales.
mkdir "$work/locales"
export LOCPATH=$work/locales
for locale in ko_KR ja_JP en_US; do
    localedef -i "$locale" -f UTF-8 "$work/locales/$locale.UTF-8" >/dev/null 2>&1
done

# What a desktop would be asked to open.
mkdir "$work/desktop"
export OPENED=$work/opened
printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"$OPENED"\n' >"$work/desktop/xdg-open"
chmod +x "$work/desktop/xdg-open"

for locale in ko_KR ja_JP en_US; do
    begin "$locale: the entry's command opens the window in the user's new folder"
    home=$work/$locale
    folder=$home/QuorinConverter
    mkdir "$home"
    export HOME=$home LC_ALL=$locale.UTF-8
    rm -f "$OPENED"
    (cd / && PATH=$work/desktop:$work/installed/bin:$PATH exec sh -c "exec $command") >"$work/out" 2>&1 &
    pid=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --pid $pid --name . | head -n 1)
    if [ -z "$window" ]; then
        fail "no window"
        cat "$work/out"
        kill $pid 2>/dev/null
        continue
    fi
    same "program" "$program" "$(readlink "/proc/$pid/exe")"
    same "folder of the program" "$folder" "$(readlink "/proc/$pid/cwd")"
    for file in $(cd "$work/installed/share/quorin-converter" && echo languages/*.qm quorinConverter.chm sample/*); do
        holds cmp "$work/installed/share/quorin-converter/$file" "$folder/$file"
    done
    holds test -s "$folder/quorinConverter.dat"

    begin "$locale: desktops know that the window is the entry's"
    holds grep -qF "\"$(sed -n 's/^StartupWMClass=//p' "$entry")\"" <<<"$(xprop -id "$window" WM_CLASS)"

    begin "$locale: the window speaks the user's language"
    title=$(xdotool getwindowname "$window")
    case $locale in
    ja_JP) same "title" "$(sed -n 's/^Name\[ja\]=//p' "$entry")" "$title" ;;
    *) same "title" "$(sed -n 's/^Name\[ko\]=//p' "$entry")" "$title" ;;
    esac

    begin "$locale: F1 opens the help of the folder"
    xdotool windowactivate --sync "$window" key F1
    timeout 10 sh -c 'until [ -s "$OPENED" ]; do sleep 0.1; done'
    same "address" "file://$folder/quorinConverter.chm" "$(cat "$OPENED")"

    begin "$locale: the program ends well when its window is closed"
    xdotool windowactivate --sync "$window" key ctrl+q
    wait $pid
    same "exit status" 0 $?
    # The question for a newer version has no answer.
    same "messages" "" "$(grep -v '^load xml failed' "$work/out")"
done
all_cases
