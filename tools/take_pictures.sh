#!/usr/bin/env bash
# Takes the pictures of the user help (docs/help) and of the README anew, with a sample show.
# Installs what is missing; needs no display.
set -euo pipefail
cd "$(dirname "$0")/.."
export LC_ALL=C.UTF-8
tools/install_packages.sh run
cmake --preset release >/dev/null
cmake --build --preset release --target make_show take_pictures >/dev/null
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
build/release/tools/make_show --numbers all --out "$work/data.mdb"
echo '{"screens": [{"name": "desk", "x": 0, "y": 0, "width": 1600, "height": 1000}]}' >"$work/screen.json"
QT_QPA_PLATFORM=offscreen:configfile=$work/screen.json \
  build/release/tools/take_pictures "$work/data.mdb" "$work/pictures"
cp "$work/pictures/karta.png" docs/screenshots/main-window.png
mv "$work"/pictures/*.png docs/help/
