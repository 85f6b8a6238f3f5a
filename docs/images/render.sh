#!/usr/bin/env bash
# Makes the pictures of this folder anew: the windows and dialogs, as the Korean help shows them, and the
# statement pages. Argument: the build folder (default: build/dev). "cmake --build BUILDFOLDER --target
# pictures" builds what this needs and runs it. Needs pdftoppm, but no display.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build/dev}
images=docs/images
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# take SCALE: once for a screen with so many times the dots.
take() {
    "$build/help/pictures/take_pictures" ko sample "$build/languages" "$folder/$1" "$1"
}
take 1
cp "$folder/1/main-empty.png" "$images/first-1.png"
cp "$folder/1/main-ready.png" "$images/first-2.png"
cp "$folder/1/main-converted.png" "$images/first-3.png"
cp "$folder/1/main-converted.png" "$images/main-window.png"
cp "$folder/1/manager.png" "$images/dialog-settings.png"
for dialog in company conditions items keys merge rules setting setting-empty setting-statement \
    statement-rules; do
    cp "$folder/1/$dialog.png" "$images/dialog-$dialog.png"
done
take 2
for dialog in setting setting-statement rules conditions; do
    cp "$folder/2/$dialog.png" "$images/dialog-$dialog-200.png"
done

mkdir "$folder/pages"
QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$folder "$build/tests/statement/paint_statements" "$folder/pages"
for page in lines-05 lines-20 japanese long-texts; do
    pdftoppm -r 96 -gray -png -singlefile "$folder/pages/$page.pdf" "$images/statement-$page"
done
