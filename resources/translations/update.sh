#!/usr/bin/env bash
# Takes the texts of the sources into lang_kr.ts and lang_jp.ts: new ones arrive unfinished, those that
# nothing shows any more go. Run it after every change of a text and translate what is unfinished.
# Argument: a folder whose lang_*.ts are updated instead of those beside this script. The environment
# may name another LUPDATE.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
target=$(cd "${1:-$here}" && pwd)
cd "$here/../.."
# No line numbers: they would change with every edit of a source.
"${LUPDATE:-lupdate}" -silent -I . -locations none -no-obsolete \
    -recursive app common editor engine rules settings statement update \
    -ts "$target/lang_kr.ts" "$target/lang_jp.ts"
