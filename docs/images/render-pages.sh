#!/usr/bin/env bash
# Paints the statement pages of this folder anew. Argument: the build folder (default: build/dev), in
# which paint_statements has been built. Needs pdftoppm.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build/dev}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$folder "$build/tests/statement/paint_statements" "$folder"
for page in lines-05 lines-20 japanese long-texts; do
    pdftoppm -r 96 -gray -png -singlefile "$folder/$page.pdf" "docs/images/statement-$page"
done
