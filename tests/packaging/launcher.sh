#!/usr/bin/env bash
# The launcher with a stand-in for the program: what it makes of the user's working folder, and what it leaves
# alone. Argument: the source folder.
set -uo pipefail
source=$1
. "$(dirname "$0")/checks.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
unset DISPLAY WAYLAND_DISPLAY QUORIN_CONVERTER_FOLDER LC_MESSAGES LANG
export LC_ALL=C.UTF-8

# The stand-in tells where and with what it was started, and ends with 7.
prefix=$work/prefix
installed=$prefix/share/quorin-converter
mkdir -p "$prefix/bin" "$prefix/lib/quorin-converter" "$installed/languages" "$installed/sample"
cp "$source/packaging/quorin-converter" "$prefix/bin"
cat >"$prefix/lib/quorin-converter/quorinConverter" <<'END'
#!/bin/sh
printf '%s\n' "$PWD" "$HOME" "$@" >>"$STARTED"
exit 7
END
chmod +x "$prefix/lib/quorin-converter/quorinConverter"
whole_installation() {
    echo "Korean, first version" >"$installed/languages/lang_kr.qm"
    echo "Japanese, first version" >"$installed/languages/lang_jp.qm"
    echo "help, first version" >"$installed/quorinConverter.chm"
    printf '[SettingInfo]\nsample=%s\n' "$(seq -s ' ' 4000)" >"$installed/sample/quorinConverter.dat"
    echo "orders" >"$installed/sample/orders.csv"
    echo "payments" >"$installed/sample/payments.csv"
    echo "licence" >"$installed/LGPL.TXT"
}
whole_installation

# user [NAME]: begins with a home folder of its own.
homes=0
user() {
    homes=$((homes + 1))
    home="$work/home$homes${1:-}"
    mkdir "$home"
    folder=$home/QuorinConverter
    export HOME=$home STARTED=$work/started$homes
    : >"$STARTED"
    chmod 666 "$STARTED"
}
start() { "$prefix/bin/quorin-converter" "$@" >"$work/out" 2>"$work/err"; }
started() { cat "$STARTED"; }
change_settings() { printf '[SettingInfo]\nstate=%s\n' "$1" >"$folder/quorinConverter.dat"; }
states() { # what the copies hold, oldest first
    (cd "$folder/backup" && cat quorinConverter-*.dat | sed -n 's/^state=//p' | tr '\n' ' ')
}
copy_count() { find "$folder/backup" -name 'quorinConverter-*.dat' | wc -l; }
whole_folder="languages/lang_jp.qm
languages/lang_kr.qm
quorinConverter.chm
quorinConverter.dat
sample/orders.csv
sample/payments.csv
sample/quorinConverter.dat"
made() { files "$folder" | grep -v '^backup/quorinConverter-[0-9-]*\.dat$'; }

begin "a first start makes the whole folder, starts the program in it with its arguments and ends as it ends"
user
start -style fusion "a b" '*'
same "exit status" 7 $?
same "started" "$folder
$home
-style
fusion
a b
*" "$(started)"
same "files" "$whole_folder" "$(made)"
same "messages" "" "$(cat "$work/out" "$work/err")"
holds cmp "$installed/sample/quorinConverter.dat" "$folder/quorinConverter.dat"

begin "a second start changes nothing, not even the time of a file"
before=$(cd "$folder" && find . -exec stat -c '%n %Y %y' {} + | sort)
sleep 0.05
start
same "exit status" 7 $?
same "files and times" "$before" "$(cd "$folder" && find . -exec stat -c '%n %Y %y' {} + | sort)"

begin "an upgrade brings languages and help up to date, and nothing else"
user
start
change_settings mine
echo "my notes" >"$folder/sample/orders.csv"
echo "my language" >"$folder/languages/lang_xx.qm"
for file in languages/lang_kr.qm languages/lang_jp.qm quorinConverter.chm sample/orders.csv \
    sample/quorinConverter.dat; do
    echo "second version" >"$installed/$file"
done
echo "new in this version" >"$installed/sample/new.csv"
start
for file in languages/lang_kr.qm languages/lang_jp.qm quorinConverter.chm; do
    same "$file" "second version" "$(cat "$folder/$file")"
done
same "settings" "state=mine" "$(grep state "$folder/quorinConverter.dat")"
same "sample" "my notes" "$(cat "$folder/sample/orders.csv")"
same "a file of the user" "my language" "$(cat "$folder/languages/lang_xx.qm")"
holds ! test -e "$folder/sample/new.csv"
rm "$installed/sample/new.csv"
whole_installation

begin "languages and help that were lost come back"
user
start
rm -r "$folder/languages" "$folder/quorinConverter.chm"
start
same "files" "$whole_folder" "$(made)"

begin "samples and settings that the user deleted stay deleted"
user
start
rm -r "$folder/sample" "$folder/quorinConverter.dat"
start
same "files" "$(grep -v -e sample/ -e dat <<<"$whole_folder")" "$(made)"

begin "a folder that the user brought from elsewhere keeps its settings and gets no samples"
user
mkdir "$folder"
change_settings brought
start
same "files" "$(grep -v sample/ <<<"$whole_folder")" "$(made)"
same "settings" "state=brought" "$(grep state "$folder/quorinConverter.dat")"

begin "an empty folder counts as new"
user
mkdir "$folder"
start
same "files" "$whole_folder" "$(made)"

begin "of six changes, the newest five states are kept, in order, though they came within a second"
user
start
for state in 1 2 3 4 5 6; do
    change_settings $state
    start
done
same "states" "2 3 4 5 6 " "$(states)"
same "copies" 5 "$(copy_count)"

begin "starts without a change make no copies"
start
start
same "states" "2 3 4 5 6 " "$(states)"

begin "going back to an older state is a change"
change_settings 4
start
same "states" "3 4 5 6 4 " "$(states)"

begin "an empty, blank or missing settings file pushes out no copy"
: >"$folder/quorinConverter.dat"
start
head -c 4096 /dev/zero >"$folder/quorinConverter.dat"
start
rm "$folder/quorinConverter.dat"
start
same "exit status" 7 $?
same "states" "3 4 5 6 4 " "$(states)"

begin "files of the user's in backup/ are neither counted nor removed"
for name in quorinConverter-christmas.dat quorinConverter.dat quorinConverter-20200101-000000-00.dat.old; do
    echo "kept" >"$folder/backup/$name"
done
change_settings 8
start
same "states" "4 5 6 4 8 " "$(states)"
for name in quorinConverter-christmas.dat quorinConverter.dat quorinConverter-20200101-000000-00.dat.old; do
    same "$name" kept "$(cat "$folder/backup/$name")"
done

begin "the names of the copies tell date and time"
user
earliest=$(date +%Y%m%d-%H%M%S)
start
latest=$(date +%Y%m%d-%H%M%S)
name=$(ls "$folder/backup")
time=${name#quorinConverter-}
time=${time%-*}
holds test "$(printf '%s\n' "$earliest" "$time" "$latest" | sort | sed -n 2p)" = "$time"
holds grep -Eqx 'quorinConverter-[0-9]{8}-[0-9]{6}-[0-9]{2}\.dat' <<<"$name"

begin "a clock that was set back does not make the new state the oldest"
mkdir "$work/early"
printf '#!/bin/sh\necho 20010101000000\n' >"$work/early/date"
chmod +x "$work/early/date"
for state in 1 2 3 4 5 6; do
    change_settings $state
    PATH=$work/early:$PATH start
done
same "states" "2 3 4 5 6 " "$(states)"

begin "a start that is killed at any file is finished by the next one"
mkdir "$work/killing"
for tool in cp mv; do
    cat >"$work/killing/$tool" <<END
#!/bin/sh
echo >>"\$CALLS"
[ \$(wc -l <"\$CALLS") -eq "\$KILL_AT" ] && [ "\$KILL_TOOL" = $tool ] && kill -KILL 0
exec $(command -v $tool) "\$@"
END
    chmod +x "$work/killing/$tool"
done
killed=0
for tool in cp mv; do
    for call in $(seq 1 20); do
        user
        : >"$work/calls"
        (
            export CALLS=$work/calls KILL_TOOL=$tool KILL_AT=$call PATH=$work/killing:$PATH
            setsid --wait "$prefix/bin/quorin-converter" # a process group of its own
            true
        ) 2>/dev/null
        [ -s "$STARTED" ] && continue
        killed=$((killed + 1))
        start
        same "exit status after $tool $call" 7 $?
        same "files after $tool $call" "$whole_folder" "$(made)"
        same "copies after $tool $call" 1 "$(copy_count)"
        for file in languages/lang_kr.qm languages/lang_jp.qm quorinConverter.chm sample/orders.csv \
            sample/payments.csv sample/quorinConverter.dat; do
            holds cmp "$installed/$file" "$folder/$file"
        done
        holds cmp "$installed/sample/quorinConverter.dat" "$folder/quorinConverter.dat"
    done
done
# Four files of the first start, three of every start and one copy of the settings, each copied and renamed.
same "starts that were killed" 16 $killed

begin "starts at the same time make one whole folder and one copy of the settings"
start_eight_times() {
    for _ in 1 2 3 4 5 6 7 8; do
        "$prefix/bin/quorin-converter" 2>>"$work/err$homes" &
    done
    wait
}
for round in 1 2 3; do
    user
    start_eight_times
    same "starts" 8 "$(grep -cx "$folder" "$STARTED")"
    same "messages" "" "$(cat "$work/err$homes")"
    same "files" "$whole_folder" "$(made)"
    same "copies" 1 "$(copy_count)"
    change_settings "$round"
    start_eight_times
    same "states" "$round " "$(states)"
    same "messages" "" "$(cat "$work/err$homes")"
done

begin "starts at the same time are harmless on a file system without locks, too"
mkdir "$work/without-locks"
printf '#!/bin/sh\nexit 1\n' >"$work/without-locks/flock"
chmod +x "$work/without-locks/flock"
for round in 1 2 3; do
    user
    PATH=$work/without-locks:$PATH start_eight_times
    same "starts" 8 "$(grep -cx "$folder" "$STARTED")"
    same "messages" "" "$(cat "$work/err$homes")"
    same "files" "$whole_folder" "$(made)"
    for copy in "$folder"/backup/*; do
        holds cmp "$copy" "$installed/sample/quorinConverter.dat"
    done
done

begin "a running program does not hold up another start"
user
cp "$prefix/lib/quorin-converter/quorinConverter" "$work/stand-in"
printf '#!/bin/sh\ntouch "$HOME/running"\nexec sleep 20\n' >"$prefix/lib/quorin-converter/quorinConverter"
"$prefix/bin/quorin-converter" &
running=$!
for _ in $(seq 200); do
    [ -e "$home/running" ] && break
    sleep 0.05
done
cp "$work/stand-in" "$prefix/lib/quorin-converter/quorinConverter.new"
mv "$prefix/lib/quorin-converter/quorinConverter.new" "$prefix/lib/quorin-converter/quorinConverter"
SECONDS=0
start
holds test $SECONDS -lt 8
kill $running
wait $running 2>/dev/null

begin "spaces, Korean letters and signs of the shell in the path of the home folder"
user " 쿼린 가게 'x' \"y\" \$HOME * -z"
start
same "exit status" 7 $?
same "started" "$folder
$home" "$(started)"
same "files" "$whole_folder" "$(made)"
change_settings 1
start
same "states" "1 " "$(states)"

begin "a working folder of the user's choice"
user
QUORIN_CONVERTER_FOLDER="$home/my orders" start
same "started" "$home/my orders" "$(started | head -n 1)"
holds ! test -e "$folder"
(cd "$home" && QUORIN_CONVERTER_FOLDER="below" start)
same "started" "$home/below" "$(started | sed -n 3p)"

begin "a working folder that is a link to another disk"
user
mkdir "$home/disk"
ln -s disk "$folder"
start
same "files" "$whole_folder" "$(made)"
holds test -L "$folder"

begin "the launcher is found through links, by its name alone, and from any folder"
for link in "$work/link" "$work/link-to-link"; do
    user
    ln -s "$([ "$link" = "$work/link" ] && echo "$prefix/bin/quorin-converter" || echo link)" "$link"
    (cd / && "$link")
    same "exit status" 7 $?
    same "files" "$whole_folder" "$(made)"
done
user
(cd "$home" && PATH=$prefix/bin:$PATH quorin-converter)
same "exit status by name" 7 $?
(cd "$prefix/bin" && sh quorin-converter)
same "exit status as an argument" 7 $?
same "files" "$whole_folder" "$(made)"

begin "without HOME, the home folder of the account is taken"
user
mkdir "$work/account"
printf '#!/bin/sh\necho "shop:x:1:1::%s:/bin/sh"\n' "$home" >"$work/account/getent"
chmod +x "$work/account/getent"
PATH=$work/account:$PATH env -u HOME "$prefix/bin/quorin-converter"
same "started" "$folder
$home" "$(started)"
printf '#!/bin/sh\nexit 2\n' >"$work/account/getent"
PATH=$work/account:$PATH env -u HOME "$prefix/bin/quorin-converter" 2>"$work/err"
same "exit status without any" 1 $?
holds grep -q "no home folder" "$work/err"

begin "a file in the place of the folder is left alone, and the user is told"
user
echo "a file" >"$folder"
start
same "exit status" 1 $?
same "the file" "a file" "$(cat "$folder")"
holds grep -q "a file has its name" "$work/err"
holds grep -qF "$folder" "$work/err"
rm "$folder"
ln -s "nowhere" "$folder"
start
same "exit status of a link that leads nowhere" 1 $?
same "started" "" "$(started)"

begin "a message is in the user's language"
start_in() { env LC_ALL="$1" "$prefix/bin/quorin-converter" 2>"$work/err"; }
start_in ko_KR.UTF-8
holds grep -q "작업폴더를 만들 수 없습니다" "$work/err"
start_in ja_JP.UTF-8
holds grep -q "作業フォルダーを作れません" "$work/err"
start_in kok_IN.UTF-8
holds grep -q "cannot be made" "$work/err"

begin "a message is shown on the desktop, if there is one"
mkdir "$work/desktop"
printf '#!/bin/sh\nprintf "%%s\\n" "$@" >>"$HOME/shown"\n' >"$work/desktop/zenity"
chmod +x "$work/desktop/zenity"
PATH=$work/desktop:$PATH start
holds ! test -e "$home/shown"
DISPLAY=:7 PATH=$work/desktop:$PATH start
holds grep -q "cannot be made" "$home/shown"

# Root may write everywhere.
unprivileged=()
if [ "$(id -u)" -eq 0 ]; then
    unprivileged=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
start_unprivileged() { "${unprivileged[@]}" "$prefix/bin/quorin-converter" >"$work/out" 2>"$work/err"; }

begin "in a home folder that cannot be written, the user is told why there is no start"
user
chmod 555 "$home"
start_unprivileged
same "exit status" 1 $?
holds grep -q "cannot be made" "$work/err"
holds grep -q "Permission denied" "$work/err"
same "started" "" "$(started)"

begin "in a folder that cannot be read, the user is told why there is no start"
user
mkdir "$folder"
chmod 000 "$folder"
start_unprivileged
same "exit status" 1 $?
holds grep -q "cannot be opened" "$work/err"

begin "in a folder that can only be read, the program starts, and the user is told what could not be done"
user
start
change_settings unsaved
echo "old help" >"$folder/quorinConverter.chm"
chmod 555 "$folder" "$folder/backup" "$folder/languages"
: >"$STARTED"
start_unprivileged
same "exit status" 7 $?
same "started" "$folder" "$(started | head -n 1)"
holds grep -q "could not be brought up to date" "$work/err"
holds grep -q "could not be backed up" "$work/err"
chmod -R u+w "$folder"

# No file may grow beyond 4 kB: the settings do not fit, as on a full disk.
start_on_full_disk() (
    trap '' XFSZ
    ulimit -f 4
    "$prefix/bin/quorin-converter" 2>&1 >/dev/null | cat >"$work/err"
    exit "${PIPESTATUS[0]}"
)

begin "a first start on a full disk tells so, and is finished when there is room"
user
start_on_full_disk
same "exit status" 1 $?
holds grep -q "cannot be filled" "$work/err"
same "started" "" "$(started)"
holds ! test -e "$folder/quorinConverter.dat"
same "half files" "" "$(files "$folder" | grep -F .new-)"
start
same "exit status" 7 $?
same "files" "$whole_folder" "$(made)"
holds cmp "$installed/sample/quorinConverter.dat" "$folder/quorinConverter.dat"

begin "a full disk costs no copy of the settings and no help file"
for state in 1 2 3 4 5; do
    change_settings $state
    start
done
cp "$installed/sample/quorinConverter.dat" "$folder/quorinConverter.dat"
seq 2000 >"$installed/quorinConverter.chm"
start_on_full_disk
same "exit status" 7 $?
holds grep -q "could not be backed up" "$work/err"
same "states" "1 2 3 4 5 " "$(states)"
same "help" "help, first version" "$(cat "$folder/quorinConverter.chm")"
same "half files" "" "$(files "$folder" | grep -F .new-)"
whole_installation

begin "an installation that lacks something says so and makes no folder"
user
mv "$prefix/lib/quorin-converter/quorinConverter" "$work/stand-in"
start
same "exit status" 1 $?
holds grep -q "not completely installed" "$work/err"
holds ! test -e "$folder"

all_cases
