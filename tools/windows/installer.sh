#!/usr/bin/env bash
# Makes the installer from a folder that program.sh put together.
#   installer.sh FOLDER VERSION STAGE SETUP.EXE
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "$1"
makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$2" "-DSTAGE=$3" "-DOUT=$4" \
  "-DICON=$here/../../build/windows/packaging/lorvo.ico" "$here/../../packaging/windows/lorvo.nsi"
