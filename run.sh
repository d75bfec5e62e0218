#!/usr/bin/env bash
# Installs what is missing, builds, puts the program folder together and starts Lorvo.
#   ./run.sh        on the delivered database, build/release/Lorvo/data.mdb
#   ./run.sh demo   on a sample show of 400 dogs, in a folder of its own
# Without a display it starts on a virtual one, saves a picture of the main window and ends.
set -euo pipefail
cd "$(dirname "$0")"
case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in *[Uu][Tt][Ff]*) ;; *) export LC_ALL=C.UTF-8 ;; esac

tools/install_packages.sh run
cmake --preset release -DLORVO_TESTS=OFF -DLORVO_BENCH=OFF
cmake --build --preset release --parallel --target program_folder
folder=$PWD/build/release/Lorvo

if [ "${1:-}" = demo ]; then
  cmake --build --preset release --parallel --target make_show
  demo=$PWD/build/release/LorvoDemo
  mkdir -p "$demo"
  # The sample show is made once; what a clerk changed in it stays.
  (cd "$folder" && find . -mindepth 1 -maxdepth 1 ! -name 'data.mdb*' ! -name 'Lorvo.settings' -exec cp -r {} "$demo" \;)
  [ -e "$demo/data.mdb" ] || build/release/tools/make_show --size club --numbers none --out "$demo/data.mdb"
  folder=$demo
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$folder/Lorvo"
fi

picture=$PWD/build/main-window.png
echo "No display here: starting Lorvo on a virtual one."
rm -f "$picture"
xvfb-run -a -s '-screen 0 1280x800x24' bash -c '
  "$1/Lorvo" & program=$!
  window=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name Lorvo | head -n 1)
  xdotool windowmove "$window" 0 0 windowsize "$window" 1280 800
  sleep 1
  scrot --overwrite "$2"
  kill $program
  wait $program || true
' bash "$folder" "$picture"
echo "Picture of the main window: $picture"
