#!/usr/bin/env bash
# Installs what is missing, checks the style, builds, and runs every test. Usage: ./test.sh [preset]
# The preset is release unless another is named (debug, asan). Ends with ctest's closing line
# and its exit code.
set -euo pipefail
cd "$(dirname "$0")"
export LC_ALL=C.UTF-8
preset=${1:-release}

tools/install_packages.sh test
tools/check_style.sh
cmake --preset "$preset" -DLORVO_TESTS=ON
cmake --build --preset "$preset" --parallel
exec ctest --preset "$preset" --parallel "$(nproc)"
