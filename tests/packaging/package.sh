#!/usr/bin/env bash
# The Debian package that cpack makes. Arguments: the build folder, the project's version.
set -uo pipefail
build=$1
version=$2
. "$(dirname "$0")/checks.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Whoever builds a package may be the only one who reads new files.
umask 077

begin "cpack makes the package"
# What is tested is built already. With the build's own generator cpack would look whether all of it is.
holds cpack --config "$build/CPackConfig.cmake" -D CPACK_CMAKE_GENERATOR=Ninja -B "$work/made" >"$work/log" 2>&1
package=$work/made/quorin-converter_${version}_$(dpkg --print-architecture).deb
if [ ! -f "$package" ]; then
    fail "no $package"
    cat "$work/log"
    all_cases
fi
dpkg-deb --extract "$package" "$work/root"
dpkg-deb --control "$package" "$work/control"
field() { dpkg-deb --field "$package" "$1"; }

begin "who makes it and what it is"
same "version" "$version" "$(field Version)"
same "maintainer" "Velmora <support@velmora.example>" "$(field Maintainer)"
same "home page" "https://www.velmora.example" "$(field Homepage)"
same "section, priority" "utils optional" "$(field Section) $(field Priority)"

begin "it depends on the libraries of the program"
for library in libc6 libqt5core5a libqt5gui5 libqt5network5 libqt5widgets5 libstdc++6; do
    holds grep -qw "$library" <<<"$(field Depends)"
done

begin "it recommends what texts, help, statements and input methods need"
for recommended in fonts-noto-cjk kchmviewer xchm pdf-viewer xdg-utils fcitx5-frontend-qt5; do
    holds grep -qw -- "$recommended" <<<"$(field Recommends)"
done

begin "nothing is run at installation or removal, so nothing can touch a user's folder"
same "control files" "control
md5sums" "$(files "$work/control")"

begin "everything belongs to root, and nothing is writable for others"
same "entries" "" "$(dpkg-deb --contents "$package" | grep -Ev '^(d|-)rwxr-xr-x root/root|^-rw-r--r-- root/root|^lrwxrwxrwx root/root')"

begin "the licences are those of the system"
for licence in LGPL GPL; do
    same "$licence.TXT" "../common-licenses/$licence-3" "$(readlink "$work/root/usr/share/quorin-converter/$licence.TXT")"
done

begin "the package has the files of the system layout"
cmake --install "$build" --prefix "$work/system" --component system >"$work/log" 2>&1
same "files" "$(files "$work/system")" "$(files "$work/root/usr")"
same "folders" "usr" "$(ls "$work/root")"

begin "the program carries no debugging symbols"
holds grep -q ', stripped' <<<"$(file "$work/root/usr/lib/quorin-converter/quorinConverter")"

all_cases
