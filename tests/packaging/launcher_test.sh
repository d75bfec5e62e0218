#!/bin/sh
# The launcher on a stand-in for the program: what it makes, what it brings up to date, what it
# leaves alone. Usage: launcher_test.sh LAUNCHER.in WORK_FOLDER
set -eu
work=$2
rm -rf "$work"
mkdir -p "$work/usr/bin" "$work/usr/libexec/lorvo" "$work/usr/share/lorvo/Šablony" "$work/home"
sed -e 's|@LORVO_PROGRAM_FROM_BIN@|../libexec/lorvo|' -e 's|@LORVO_DATA_FROM_BIN@|../share/lorvo|' \
  "$1" > "$work/usr/bin/lorvo"
chmod +x "$work/usr/bin/lorvo"
ln -s lorvo "$work/usr/bin/lorvo-spravce"
share=$work/usr/share/lorvo
export HOME="$work/home"
unset DISPLAY WAYLAND_DISPLAY
faults=0

deliver() { # deliver VERSION: what a package of that version holds
  printf '#!/bin/sh\necho "started %s in $(dirname "$0")"\n' "$1" > "$work/usr/libexec/lorvo/Lorvo"
  chmod +x "$work/usr/libexec/lorvo/Lorvo"
  printf '#!/bin/sh\necho "spravce %s in $(dirname "$0"):" "$@"\n' "$1" > "$work/usr/libexec/lorvo/LorvoSpravce"
  chmod +x "$work/usr/libexec/lorvo/LorvoSpravce"
  echo "breeds of $1" > "$share/data.mdb"
  for name in "Diplomy.html" "Seznam psů.html"; do echo "$name of $1" > "$share/Šablony/$name"; done
  mkdir -p "$share/napoveda"
  echo "help of $1" > "$share/napoveda/index.html"
  echo "help of $1" > "$share/Lorvo.chm"
}

expect() { # expect WHAT WANTED GOT
  [ "$2" = "$3" ] && return
  echo "FAILED: $1"
  echo "  wanted: $2"
  echo "  got:    $3"
  faults=$((faults + 1))
}

start() { "$work/usr/bin/lorvo" "$@" 2>&1 || true; }

folder=$HOME/Lorvo
deliver 1
expect "first start" "started 1 in $folder" "$(start)"
expect "delivered data" "breeds of 1" "$(cat "$folder/data.mdb")"
expect "delivered template" "Seznam psů.html of 1" "$(cat "$folder/Šablony/Seznam psů.html")"
expect "delivered help" "help of 1" "$(cat "$folder/napoveda/index.html")"

echo "dogs" > "$folder/data.mdb"
echo "places" > "$folder/Lorvo.settings"
echo "my diploma" > "$folder/Šablony/Diplomy.html"
echo "printed" > "$folder/Šablony/Výstup.html"
expect "second start" "started 1 in $folder" "$(start)"
expect "data after a start" "dogs" "$(cat "$folder/data.mdb")"
expect "changed template after a start" "my diploma" "$(cat "$folder/Šablony/Diplomy.html")"

deliver 2
expect "start after an update" "started 2 in $folder" "$(start)"
expect "data after an update" "dogs" "$(cat "$folder/data.mdb")"
expect "settings after an update" "places" "$(cat "$folder/Lorvo.settings")"
expect "changed template after an update" "my diploma" "$(cat "$folder/Šablony/Diplomy.html")"
expect "new template to look at" "Diplomy.html of 2" "$(cat "$folder/Šablony/Dodané/Diplomy.html")"
expect "untouched template after an update" "Seznam psů.html of 2" "$(cat "$folder/Šablony/Seznam psů.html")"
expect "output after an update" "printed" "$(cat "$folder/Šablony/Výstup.html")"
expect "help after an update" "help of 2" "$(cat "$folder/napoveda/index.html")"
expect "the other program after an update" "spravce 2 in $folder:" "$("$folder/LorvoSpravce")"
expect "the other program by its own command" "spravce 2 in $folder: seznam psi psi.csv" \
  "$("$work/usr/bin/lorvo-spravce" seznam psi psi.csv)"
expect "nothing half written" "" "$(find "$folder" -name '*.nový')"

rm "$folder/Šablony/Seznam psů.html"
start > /dev/null
expect "a template that was lost comes back" "Seznam psů.html of 2" "$(cat "$folder/Šablony/Seznam psů.html")"

other="$work/na stick"
expect "a folder of its own" "started 2 in $other" "$(start "$other")"
expect "version" "started 2 in $work/usr/bin/../libexec/lorvo" "$(start --version)"

: > "$work/occupied"
expect "a folder that can't be made" \
  "Lorvo nelze spustit: složku $work/occupied/Lorvo nelze vytvořit. Zkontrolujte práva a volné místo na disku." \
  "$(start "$work/occupied/Lorvo")"
rm "$folder/Lorvo.chm"
mkdir "$folder/Lorvo.chm.nový" # stands for a file that can't be written
expect "a file that can't be written" \
  "Lorvo nelze spustit: soubor $folder/Lorvo.chm nelze zapsat. Zkontrolujte práva ke složce a volné místo na disku." \
  "$(start)"

rmdir "$folder/Lorvo.chm.nový"
expect "an option that is none" \
  "Lorvo nelze spustit: přepínač -x není znám. Použití: lorvo [SLOŽKA]" "$(start -x)"
expect "a clerk without a home" \
  "Lorvo nelze spustit: domovská složka není známa. Zvolte složku: lorvo SLOŽKA" \
  "$(unset HOME; start)"
expect "a clerk without a home names a folder" "started 2 in $other" "$(unset HOME; start "$other")"
ln -s "$work/disk-not-there/data.mdb" "$work/linked"
mkdir "$work/far"
mv "$work/linked" "$work/far/data.mdb"
expect "data on a disk that isn't there" "started 2 in $work/far" "$(start "$work/far")"
expect "the link to it" "$work/disk-not-there/data.mdb" "$(readlink "$work/far/data.mdb")"

# The icon pressed twice: the later start waits until the earlier one has put all in place.
twice="$work/twice"
mkdir -p "$twice/Šablony/Dodané"
exec 8< "$twice/Šablony/Dodané"
flock 8
expect "a start beside another one" "" "$(timeout 1 "$work/usr/bin/lorvo" "$twice" 8<&-; ls "$twice" | grep -v Šablony)"
flock -u 8
printf '#!/bin/sh\n[ -e /proc/self/fd/9 ] && echo holds || echo free\n' > "$work/usr/libexec/lorvo/Lorvo"
expect "the launcher's lock after the program's start" "free" "$(start "$twice")"

[ $faults -eq 0 ] && echo "The launcher holds."
exit $faults
