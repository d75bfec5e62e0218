#!/usr/bin/env bash
# Proves under Wine that installer and zip never touch what the clerk works on: installs, starts,
# takes a picture, updates to a higher version over changed data, removes.
#   test_packages.sh FOLDER PACKAGES   FOLDER of prefix.sh, PACKAGES the folder with both packages
# Each fact that fails is told; the exit code is their number.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "${1:-}"
export LORVO_WINDOWS=$windows
packages=$(cd "$2" && pwd)
work=$windows/proof
rm -rf "$work"
mkdir -p "$work"
export WINEPREFIX=$work/wine WINEQT_PLUGIN_PATH='' WINEPATH=''
wine=$here/wine.sh
faults=0

expect() { # expect WHAT COMMAND...
  local what=$1
  shift
  if "$@" > /dev/null 2>&1; then
    echo "ok      $what"
  else
    echo "FAILED  $what"
    faults=$((faults + 1))
  fi
}

# start_program EXE PICTURE: shows the main window, takes its picture, closes it by its user's keys.
# It has ended well when its process is gone by itself and no journal is left. What ran before
# without a display leaves a desktop that shows no windows.
start_program() {
  timeout 60 wineserver -w || wineserver -k
  timeout 180 xvfb-run -a -s '-screen 0 1280x800x24' bash -c '
    "$1" "$2" & program=$!
    window=$(timeout 90 xdotool search --sync --onlyvisible --name "^Lorvo$" | head -n 1)
    [ -n "$window" ] || exit 1
    sleep 4
    scrot --overwrite "$3"
    xdotool windowfocus "$window" key alt+F4
    for second in {1..60}; do
      kill -0 $program || break
      sleep 1
    done
    ! kill $program && [ ! -e "${2%/*}/data.mdb-wal" ]' bash "$wine" "$1" "$2"
}

# What the clerk has: changed data, a changed template, something printed, settings.
work_in() {
  python3 - "$1/data.mdb" <<'PY'
import sqlite3, sys
file = sqlite3.connect(sys.argv[1])
file.execute("INSERT INTO Kruhy (Nazev) VALUES ('Kruh pořadatelky')")
file.commit()
PY
  printf '<html>moje</html>' > "$1/Šablony/Diplomy.html"
  mkdir -p "$1/Tisky"
  echo printed > "$1/Tisky/Katalog.docx"
  echo '[Main]' > "$1/Lorvosys.ini"
}

sums() { (cd "$1" && sha256sum data.mdb Šablony/Diplomy.html Tisky/Katalog.docx Lorvosys.ini 2>&1); }

higher_stage() { # the same stage as a higher version brings it
  rm -rf "$work/higher"
  cp -r "$windows/stage/Lorvo" "$work/higher"
  echo 'other breeds' > "$work/higher/data.mdb"
  for name in Diplomy Platby; do echo '<html>nová</html>' > "$work/higher/Šablony/$name.html"; done
}

test_installer() {
  local setup=$1 folder=$WINEPREFIX/drive_c/users/$USER_NAME/AppData/Local/Lorvo before
  expect "the installer ends well, quietly" "$wine" "$setup" /S
  expect "the program is there" test -e "$folder/Lorvo.exe"
  expect "the delivered data is there" test -e "$folder/data.mdb"
  expect "the program starts and is pictured" start_program "$folder/Lorvo.exe" "$work/installed.png"
  work_in "$folder"
  before=$(sums "$folder")
  higher_stage
  "$here/installer.sh" "$windows" 9.9.9 "$work/higher" "$work/higher.exe" > "$work/makensis.log"
  expect "a higher version installs over it" "$wine" "$work/higher.exe" /S
  expect "the update left the clerk's files alone" test "$before" = "$(sums "$folder")"
  expect "an untouched template is the new one" grep -q nová "$folder/Šablony/Platby.html"
  expect "the new one of a changed template lies aside" grep -q nová "$folder/Šablony/Dodané/Diplomy.html"
  expect "the program starts after the update" start_program "$folder/Lorvo.exe" "$work/updated.png"
  before=$(sums "$folder")
  expect "the uninstaller ends well, quietly" "$wine" "$folder/Odinstalovat.exe" /S "_?=$(winpath "$folder")"
  expect "the program is gone" test ! -e "$folder/Lorvo.exe"
  expect "no library is left" test -z "$(find "$folder" -name '*.dll')"
  expect "the removal left the clerk's files alone" test "$before" = "$(sums "$folder")"
}

test_zip() {
  local folder=$work/stick/Lorvo before
  mkdir -p "$work/stick"
  expect "the zip unpacks" unzip -q "$1" -d "$work/stick"
  expect "the program starts from there" start_program "$folder/Lorvo.exe" "$work/stick.png"
  work_in "$folder"
  before=$(sums "$folder")
  expect "the zip for an update unpacks over it" unzip -qo "$2" -d "$work/stick"
  expect "the update left the clerk's files alone" test "$before" = "$(sums "$folder")"
  expect "the program starts after the update" start_program "$folder/Lorvo.exe" "$work/stick-updated.png"
}

winpath() { printf 'Z:%s' "${1//\//\\}"; }

"$wine" wineboot --init > /dev/null 2>&1
USER_NAME=$(ls "$WINEPREFIX/drive_c/users" | grep -v Public | head -n 1)
test_installer "$(ls "$packages"/lorvo-*-windows-setup.exe)"
test_zip "$(ls "$packages"/lorvo-*-windows.zip)" "$(ls "$packages"/lorvo-*-windows-aktualizace.zip)"
echo "Pictures: $work/*.png; faults: $faults"
exit $faults
