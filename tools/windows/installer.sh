#!/usr/bin/env bash
# Makes the installer from a folder that program.sh put together.
#   installer.sh FOLDER VERSION STAGE SETUP.EXE
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "$1"
stage=$3
export LC_ALL=C.UTF-8 # by which makensis reads the names of files

# What the uninstaller removes, by name: all that is staged but the clerk's own.
removed=$(mktemp)
trap 'rm -f "$removed"' EXIT
lines() { sed 's|^\./||; s|/|\\|g; s|.*|  '"$1"' "$INSTDIR\\&"|'; }
{
  cd "$stage"
  find . -type f ! -path ./data.mdb ! -path './Šablony/*' | lines Delete
  find . -mindepth 1 -depth -type d ! -path ./Šablony | lines RMDir
} > "$removed"

makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$2" "-DSTAGE=$stage" "-DREMOVED=$removed" "-DOUT=$4" \
  "-DICON=$windows/stage/lorvo.ico" "$here/../../packaging/windows/lorvo.nsi"
