#!/usr/bin/env bash
# Holds the sources against .clang-format, and with "tidy" against .clang-tidy too (slow).
# Formatting is that of version 14: others break lines elsewhere.
set -euo pipefail
cd "$(dirname "$0")/.."
formatter=$(command -v clang-format-14 || command -v clang-format)
"$formatter" --version | grep -q 'version 14\.' || { echo "clang-format 14 is needed" >&2; exit 1; }
sources() { find src tests tools bench \( -name '*.cpp' -o -name '*.h' \) -print0; }

sources | xargs -0 -n 40 -P "$(nproc)" "$formatter" --dry-run --Werror
if sources | xargs -0 grep -nE $'\t|[ \r]$'; then
  echo "Tabs, blanks or carriage returns at the end of the lines above." >&2
  exit 1
fi
if sources | xargs -0 grep -nE '"_qs\b' || find src tests tools bench -name '*.cpp' -print0 | xargs -0 grep -n 'QStringLiteral('; then
  echo 'Literals are u"..."_s; QStringLiteral stands in headers only, where no using directive may.' >&2
  exit 1
fi
echo "Formatting holds."
if [ "${1:-}" = tidy ]; then
  cmake --preset release >/dev/null
  find src tools -name '*.cpp' -print0 | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/release --quiet
  echo "Linting holds."
fi
