#!/bin/bash
# Renders every drawing in svg/ to images/<name>.png and images/<name>@2x.png.
#
# Run it after changing an SVG and commit the resulting PNGs together with it.
# Needs rsvg-convert (Debian package: librsvg2-bin).
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
svg_dir="$here/svg"
out_dir="$here/images"

if ! command -v rsvg-convert >/dev/null; then
    echo "render.sh: rsvg-convert not found (install librsvg2-bin)" >&2
    exit 1
fi

mkdir -p "$out_dir"

render() { # <svg file> <edge length in px> <png file>
    rsvg-convert --format=png --width="$2" --height="$2" --output="$3" "$1"
}

count=0
for svg in "$svg_dir"/*.svg; do
    [[ -e "$svg" ]] || { echo "render.sh: no SVG files in $svg_dir" >&2; exit 1; }
    name="$(basename "$svg" .svg)"
    size=24
    if [[ "$name" == logo ]]; then
        size=64
    fi
    render "$svg" "$size" "$out_dir/$name.png"
    render "$svg" "$((size * 2))" "$out_dir/$name@2x.png"
    count=$((count + 1))
done

echo "Rendered $count icons into $out_dir"
