#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs each so many times over its corpus (a million by default).
# What a run adds to the corpus stays in build/; what it finds is named by libFuzzer and stops the script.
# Usage: tools/fuzz.sh [runs] [target...]
set -euo pipefail
cd "$(dirname "$0")/.."
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
runs=${1:-1000000}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for file in tests/fuzz/fuzz_*.cpp; do
    name=${file##*/fuzz_}
    targets+=("${name%.cpp}")
  done
fi

cmake --preset fuzz
for target in "${targets[@]}"; do
  cmake --build --preset fuzz --target "fuzz_$target"
done
for target in "${targets[@]}"; do
  mkdir -p "build/fuzz/corpus/$target"
  echo "== $target"
  build/fuzz/tests/fuzz/"fuzz_$target" -runs="$runs" -max_len=4096 -print_final_stats=1 \
    "build/fuzz/corpus/$target" "tests/fuzz/corpus/$target" 2>&1 | grep -E 'ERROR|SUMMARY|stat::|^Done'
done
