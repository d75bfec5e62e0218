#!/bin/bash
# The data's own program as a script runs it, and its window as a clerk opens and leaves it: exit
# codes, what is said, what is written where.
#   manager_commands_test.sh PROGRAM DATABASE WORK_FOLDER
set -u
program=$1 database=$2 work=$3
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
faults=0

fault() {
  echo "FAILED: $1"
  faults=$((faults + 1))
}
# expect CODE TEXT ARGUMENT...: runs the program; the text is part of what it says on either output.
expect() {
  local code=$1 text=$2 said
  shift 2
  said=$(./LorvoSpravce "$@" 2>&1)
  local got=$?
  [ $got -eq "$code" ] || fault "'$*' ended with $got instead of $code: $said"
  [[ $said == *"$text"* ]] || fault "'$*' said: $said"
}

rm -rf "$work"
mkdir -p "$work"
cp "$program" "$database" "$work"
cd "$work" || exit 1

expect 0 "Psi: 0" kontrola
expect 0 "Seznam psů: 0" seznam psi psi.csv
[ -s psi.csv ] || fault "no list was written"
expect 2 "bez příkazu otevře okno" nic
expect 2 "seznam psi|vystavovatele" seznam psi data.mdb
expect 1 "soubor neexistuje" vratit nic.mdb
[ ! -e data.mdb-wal ] || fault "a journal was left"

./LorvoSpravce 2> /dev/null &
window=$!
# From then on it ends in order when it is told to.
for _ in $(seq 600); do
  [ $((0x$(awk '/^SigCgt/ { print $2 }' /proc/$window/status) >> 14 & 1)) -eq 1 ] && break
  sleep 0.1
done
kill -TERM $window || fault "the window wasn't open"
wait $window || fault "the window ended with $?"

mv data.mdb elsewhere.mdb
expect 1 "data.mdb" kontrola
[ $faults -eq 0 ] && echo "The commands hold."
exit $faults
