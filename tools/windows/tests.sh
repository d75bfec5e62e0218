#!/usr/bin/env bash
# Builds the tests for Windows and runs every test program under Wine, on the offscreen platform.
#   tests.sh FOLDER [PROGRAM...]   FOLDER of prefix.sh; without a program all of them
# What can't pass there is named in wine_exceptions.txt with its reason. The exit code is the number
# of programs in which anything else failed.
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "${1:-}"
shift $(($# > 0))
export LORVO_WINDOWS=$windows QT_QPA_PLATFORM=offscreen WINEPREFIX=$windows/wine-offscreen
cd "$here/../.."
export LORVO_SOURCE_DIR=Z:$PWD

# Beside the program lie the toolkit's Czech texts; and widths are to be those of the tests on Linux.
mkdir -p "$prefix/translations" "$windows/fonts"
cp /usr/share/qt6/translations/qtbase_cs.qm "$prefix/translations/"
cp /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold}.ttf "$windows/fonts/"
export WINEQT_QPA_FONTDIR=Z:$windows/fonts

cmake --preset windows -DLORVO_TESTS=ON > "$windows/log/tests-configure.log" || exit 1
cmake --build --preset windows --parallel > "$windows/log/tests-build.log" || exit 1
results=$windows/test-results
mkdir -p "$results"
exceptions=$(sed 's/[ \t]*#.*//' "$here/wine_exceptions.txt" | paste -sd: | sed 's/::*/:/g; s/^://; s/:$//')

failed_programs=0
for program in $(find build/windows/tests -name 'test_*.exe' -o -name 'walk_*.exe' | sort); do
  name=$(basename "$program" .exe)
  [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
  wanted='*'
  QT_QPA_PLATFORM=offscreen
  # The walks through all windows, on the smallest screen in the usual look. The path has no drive,
  # since the toolkit parts its platform's settings at colons.
  if [[ $name == walk_* ]]; then
    wanted='*light'
    QT_QPA_PLATFORM=offscreen:configfile=$(dirname "$program")/screen-1366x768.json
  fi
  timeout 600 "$here/wine.sh" "$program" "--gtest_filter=$wanted-$exceptions" > "$results/$name.log" 2>&1
  code=$?
  printf '%-36s exit %-3s %s\n' "$name" $code "$(grep -aE 'PASSED|FAILED TEST' "$results/$name.log" | tr -d '\r' | paste -sd' ')"
  grep -aE '^\[  FAILED  \] [A-Za-z].*\(' "$results/$name.log" | tr -d '\r' | sed 's/^/    /'
  [ $code -eq 0 ] || failed_programs=$((failed_programs + 1))
done
echo "Not run, with reasons: tools/windows/wine_exceptions.txt. Programs that failed: $failed_programs"
exit $failed_programs
