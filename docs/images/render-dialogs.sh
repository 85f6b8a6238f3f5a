#!/usr/bin/env bash
# Makes the pictures of the dialogs of this folder anew. Argument: the build folder (default:
# build/dev), in which picture_dialogs has been built. Needs xvfb-run and openbox.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build/dev}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp sample/* "$folder"
mkdir "$folder/200"
tests/drive/with-display "$build/tests/editor/picture_dialogs" "$folder" docs/images
QT_SCALE_FACTOR=2 tests/drive/with-display "$build/tests/editor/picture_dialogs" "$folder" "$folder/200"
for dialog in setting setting-statement rules conditions; do
    cp "$folder/200/dialog-$dialog.png" "docs/images/dialog-$dialog-200.png"
done
