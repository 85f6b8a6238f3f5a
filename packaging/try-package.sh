#!/usr/bin/env bash
# Tries the Debian package as a new user gets it: makes it, installs it in a clean Debian 12 made for the
# purpose, starts it there as a Korean and as a Japanese user from the desktop entry's command, takes pictures,
# removes the package, and looks whether the users' folders are as they were.
#
# packaging/try-package.sh [--recommends] [BUILD]
#   --recommends  install the recommended packages too (1 GB); otherwise only the fonts of them
#   BUILD         a build folder (default: build/release, made if it is not there); the pictures go to
#                 BUILD/package-trial
#
# Needs root, and the packages of the groups "build" and "package" of .ci/install-packages. All mounts and
# processes are in namespaces of their own and end with them; the clean Debian is removed at the end.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
say() { printf '\n== %s\n' "$*"; }

# What a command writes is shown only if it fails.
quietly() {
    "$@" >"$clean.log" 2>&1 || {
        cat "$clean.log"
        exit 1
    }
    rm "$clean.log"
}

make_package_and_enter() {
    recommends=no
    if [ "${1:-}" = --recommends ]; then
        recommends=yes
        shift
    fi
    build=${1:-$top/build/release}
    if [ "$(id -u)" -ne 0 ]; then
        echo "A clean Debian can only be made by root." >&2
        exit 1
    fi
    say "Making the package"
    if [ ! -f "$build/CMakeCache.txt" ]; then
        cmake -S "$top" -B "$build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INTERPROCEDURAL_OPTIMIZATION=ON >/dev/null
    fi
    build=$(cd "$build" && pwd)
    cmake --build "$build" --parallel "$(nproc)" --target packaging >/dev/null
    shots=$build/package-trial
    rm -rf "$shots"
    mkdir "$shots"
    (cd "$build" && cpack -B "$shots" >/dev/null)
    rm -r "$shots/_CPack_Packages"
    ls -l "$shots"

    clean=$(mktemp -d)
    chmod 755 "$clean" # it becomes the root folder of everybody in it
    trap 'rm -rf --one-file-system "$clean" "$clean.log"' EXIT
    unshare --mount --propagation private --pid --fork --kill-child --mount-proc \
        "$0" --in-namespace "$clean" "$shots" "$recommends"
}

in_clean() { chroot "$clean" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    ${http_proxy:+http_proxy="$http_proxy"} "$@"; }

# The sources of this machine that are Debian 12's.
debian_sources() {
    apt-get indextargets --format "$1" 'Created-By: Packages' 'Origin: Debian' 'Component: main' "$2" | sort -u
}

make_clean_debian() {
    say "Making a clean Debian 12"
    mirror=$(debian_sources '$(REPO_URI)' 'Codename: bookworm' | head -n 1)
    quietly debootstrap --variant=minbase bookworm "$clean" "$mirror"
    for codename in bookworm bookworm-updates bookworm-security; do
        debian_sources 'deb $(REPO_URI) $(RELEASE) main' "Codename: $codename"
    done >"$clean/etc/apt/sources.list"
    # No services, no manuals.
    printf '#!/bin/sh\nexit 101\n' >"$clean/usr/sbin/policy-rc.d"
    chmod +x "$clean/usr/sbin/policy-rc.d"
    mount -t proc proc "$clean/proc"
    mount -t tmpfs -o mode=1777 tmpfs "$clean/tmp"
    in_clean apt-get update -qq
    # What every Korean and Japanese user has.
    quietly in_clean apt-get install -y -qq --no-install-recommends locales fonts-noto-cjk
    for locale in ko_KR ja_JP; do
        in_clean localedef -i $locale -f UTF-8 $locale.UTF-8
    done
    in_clean dpkg-query -W | wc -l | sed 's/$/ packages/'
}

install_package() {
    say "Installing: apt-get install ./$(basename "$package")"
    cp "$package" "$clean/root"
    options=(-y -qq)
    [ "$recommends" = yes ] || options+=(--no-install-recommends)
    quietly in_clean sh -c 'cd /root && exec apt-get install "$@"' sh "${options[@]}" "./$(basename "$package")"
    in_clean dpkg-query -W | wc -l | sed 's/$/ packages/'
    in_clean dpkg -s quorin-converter | grep -E '^(Status|Version)'
    in_clean dpkg --verify quorin-converter
    echo "Input methods that Qt knows there:"
    (cd "$clean/usr/lib" && find . -path '*/platforminputcontexts/*.so' -printf '  %f\n')
}

# A display of this machine that the clean Debian sees: nothing has to be installed there for the trial.
start_display() {
    mkdir -p /tmp/.X11-unix "$clean/tmp/.X11-unix"
    mount -t tmpfs -o mode=1777 tmpfs /tmp/.X11-unix
    mount --bind /tmp/.X11-unix "$clean/tmp/.X11-unix"
    Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -ac 3>"$clean/root/display" 2>/dev/null &
    until [ -s "$clean/root/display" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$clean/root/display")
    export DISPLAY
    HOME=$clean/root openbox >/dev/null 2>&1 &
    sleep 1
}

# open_help USER: the help in the viewer that the desktop knows.
open_help() {
    xdotool key F1
    sleep 8
    import -window root "$shots/$1-help.png"
    shown=no
    for other in $(xdotool search --onlyvisible --name .); do
        [ "$other" != "$window" ] || continue
        name=$(xdotool getwindowname "$other")
        echo "window after F1: $name"
        case $name in
        *도움말*) shown=yes ;;
        esac
        xdotool windowkill "$other"
    done
    if [ $shown = no ]; then
        echo "the viewer does not show the help"
        exit 1
    fi
    xdotool windowactivate --sync "$window"
}

# start_as USER LOCALE: the program's first start by a new user, and its end.
start_as() {
    say "A first start by $1 in $2"
    in_clean useradd --create-home --shell /bin/sh "$1"
    command=$(sed -n 's/^Exec=//p' "$clean/usr/share/applications/quorin-converter.desktop")
    echo "command of the desktop entry: $command"
    in_clean su - "$1" -c "export DISPLAY=$DISPLAY LC_ALL=$2.UTF-8; exec $command" >"$clean/root/out" 2>&1 &
    program=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --class 'Quorin Converter' | head -n 1 || true)
    [ -n "$window" ] || {
        echo "no window:"
        cat "$clean/root/out"
        exit 1
    }
    xdotool windowactivate --sync "$window"
    echo "window: $(xdotool getwindowname "$window")"
    sleep 1
    import -window root "$shots/$1.png"
    [ "$recommends" = no ] || open_help "$1"
    xdotool key ctrl+q
    status=0
    wait $program || status=$?
    sed 's/^/  /' "$clean/root/out"
    echo "exit status: $status"
    [ $status -eq 0 ]
    echo "working folder:"
    (cd "$clean/home/$1/QuorinConverter" && find . ! -type d -printf '  %8s %M %P\n' | sort -k 3)
    echo "the user's own notes" >"$clean/home/$1/QuorinConverter/notes.txt"
}

remove_package() {
    say "Removing: apt-get remove quorin-converter"
    state() { (cd "$clean/home" && find . -type f -exec sha256sum {} + | sort && find . -printf '%p %M %u %T@\n' | sort); }
    before=$(state)
    quietly in_clean apt-get remove -y -qq quorin-converter
    if [ "$before" != "$(state)" ]; then
        echo "the users' folders are changed:"
        diff <(echo "$before") <(state) || exit 1
    fi
    echo "the users' folders are as they were"
    rest=$(find "$clean/usr" "$clean/etc" "$clean/var/lib" -iname '*quorin*' | grep -v '^'"$clean"'/var/lib/dpkg/' || true)
    [ -z "$rest" ] || {
        echo "left behind: $rest"
        exit 1
    }
    echo "nothing of the package is left behind"
}

if [ "${1:-}" = --in-namespace ]; then
    clean=$2
    shots=$3
    recommends=$4
    package=$(echo "$shots"/*.deb)
    make_clean_debian
    install_package
    start_display
    start_as korean ko_KR
    start_as japanese ja_JP
    remove_package
    say "Pictures and package: $shots"
else
    make_package_and_enter "$@"
fi
