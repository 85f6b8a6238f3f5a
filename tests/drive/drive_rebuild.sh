#!/usr/bin/env bash
# Builds every sample setting anew, in a folder with nothing but the input files, with real mouse and
# key events in the real window, and compares what the conversions with them write.
# Arguments: the folder of the programs, the source folder. Exit code 77: the tools are not here.
set -euo pipefail
programs=$1
source=$2
for tool in xvfb-run openbox xdotool pdftoppm; do
    command -v "$tool" >/dev/null || { echo "no $tool here"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/sample"
cp "$source"/sample/*.csv "$work/sample"
rm -f "$work"/sample/*_output.csv
shots=$programs/tests/drive/rebuild
rm -rf "$shots"
mkdir -p "$shots"

"$source/tests/drive/with-display" "$programs/tests/drive/quorinRebuild" "$work/sample" \
    "$source/sample" "$shots"
for expected in "$source"/tests/samples/expected/*; do
    cmp "$expected" "$work/sample/$(basename "$expected")"
done
# One page for each order.
for statement in cart_kr_orders_output.pdf:12 cart_jp_orders_output.pdf:11; do
    pdfinfo "$work/sample/${statement%:*}" | grep -q "^Pages: *${statement#*:}\$"
done
