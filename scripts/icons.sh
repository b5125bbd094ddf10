#!/usr/bin/env bash
# Renders the program's icon, drawn as SVG, into the PNG sizes of the hicolor icon theme under
# packaging/icons/hicolor/, which are kept in the repository so that a build needs no renderer.
# Run it after changing a drawing. The 16-pixel icon has a drawing of its own, on whole pixels.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/setup.sh
orrivane_install_packages librsvg2-bin

icons=packaging/icons
# The scalable drawing bears the program's id, which every size takes for its name.
scalable=$(echo "$icons"/hicolor/scalable/apps/*.svg)
id=$(basename "$scalable" .svg)
for size in 16 32 48 64 128 256; do
  drawing="$scalable"
  if [ -f "$icons/$id-$size.svg" ]; then drawing="$icons/$id-$size.svg"; fi
  mkdir -p "$icons/hicolor/${size}x${size}/apps"
  rsvg-convert --width "$size" --height "$size" "$drawing" -o "$icons/hicolor/${size}x${size}/apps/$id.png"
done
ls -l "$icons"/hicolor/*/apps/
