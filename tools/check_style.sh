#!/usr/bin/env bash
# Holds the sources against .clang-format, and with "tidy" against .clang-tidy too (slow).
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
echo "Formatting holds."
if [ "${1:-}" = tidy ]; then
  cmake --preset release >/dev/null
  git ls-files 'src/*.cpp' 'tools/*.cpp' | xargs -n 4 -P "$(nproc)" clang-tidy -p build/release --quiet
  echo "Linting holds."
fi
