#!/bin/bash
# Nothing of the program opens a network connection: not its start and end on the delivered data,
# not a morning at the desk, not the set-up of a show.
#   no_network_test.sh WITHOUT_NETWORK PROGRAM DATABASE WORK_FOLDER TEST_PROGRAM...
set -u
guarded=$1 program=$2 database=$3 work=$4
shift 4
killed=$((128 + $(kill -l SYS)))
faults=0

fault() {
  echo "FAILED: $1"
  faults=$((faults + 1))
}

"$guarded" bash -c 'exec 3<> /dev/tcp/127.0.0.1/9' 2> /dev/null
[ $? -eq $killed ] || fault "a connection is not noticed, so nothing below would prove anything"

rm -rf "$work"
mkdir -p "$work"
cp "$program" "$database" "$work"
QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "$guarded" "$work/Lorvo" &
running=$!
# The journal is there from the moment that the data is open.
for _ in $(seq 600); do
  [ -e "$work/data.mdb-wal" ] || ! kill -0 $running 2> /dev/null && break
  sleep 0.1
done
kill -TERM $running
wait $running || fault "the program ended with $?"

for test in "$@"; do
  "$guarded" "$test" > "$work/log" 2>&1 || { fault "$test ended with $?"; tail -n 5 "$work/log"; }
done
[ $faults -eq 0 ] && echo "No network connection."
exit $faults
