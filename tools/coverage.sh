#!/usr/bin/env bash
# Runs the whole suite with the compiler's counters and says which lines of src/ it doesn't run.
# Usage: tools/coverage.sh. A line for each file that isn't run whole, and the share of all; the
# sources with their counters lie in build/coverage/lines/index.html.
set -euo pipefail
cd "$(dirname "$0")/.."
export LC_ALL=C.UTF-8

tools/install_packages.sh coverage
cmake --preset coverage -DLORVO_TESTS=ON
cmake --build --preset coverage --parallel
find build/coverage -name '*.gcda' -delete
ctest --preset coverage --parallel "$(nproc)"
mkdir -p build/coverage/lines
gcovr --root . --filter src/ --exclude '.*_autogen/' --exclude-throw-branches -j "$(nproc)" \
  --html-details build/coverage/lines/index.html --txt build/coverage/lines.txt build/coverage
grep -v '100%' build/coverage/lines.txt
