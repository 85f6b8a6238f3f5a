#!/usr/bin/env bash
# Drives the real window through every sample conversion with real mouse and key events, compares what
# it writes, then starts the program itself and closes it by its key.
# Arguments: the folder of the programs, the source folder. Exit code 77: the tools are not here.
set -euo pipefail
programs=$1
source=$2
for tool in xvfb-run openbox xdotool pdftoppm; do
    command -v "$tool" >/dev/null || { echo "no $tool here"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$source/sample" "$work/sample"
rm -f "$work"/sample/*_output.*
mkdir "$work/shots"

"$source/tests/drive/with-display" "$programs/tests/drive/quorinDrive" "$work/sample" \
    "$work/sample/conversions.txt" "$work/shots"
for expected in "$source"/tests/samples/expected/*.csv; do
    cmp "$expected" "$work/sample/$(basename "$expected")"
done
# One page for each order.
for statement in cart_kr_orders_output.pdf:12 cart_jp_orders_output.pdf:11; do
    pdfinfo "$work/sample/${statement%:*}" | grep -q "^Pages: *${statement#*:}\$"
done

# The program ends with 0 when its window is closed.
cd "$work/sample"
export https_proxy=http://127.0.0.1:9 # nobody is asked for the latest version
"$source/tests/drive/with-display" sh -c '
    "$1" & program=$!
    xdotool search --sync --onlyvisible --pid $program --name . windowactivate --sync key ctrl+q
    wait $program
' sh "$programs/app/quorinConverter"
