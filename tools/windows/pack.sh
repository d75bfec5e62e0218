#!/usr/bin/env bash
# Makes the packages for Windows from what program.sh put together: the installer, the zip for a
# stick, and the zip that updates such a folder, in which no file of the clerk's is.
#   pack.sh FOLDER VERSION OUT
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "$1"
version=$2
out=$(cd "$3" && pwd)
stage=$windows/stage/Lorvo
name=$out/lorvo-$version-windows

"$here/installer.sh" "$windows" "$version" "$stage" "$name-setup.exe"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8
cp -r "$stage" "$work/Lorvo"
mkdir "$work/Lorvo/Šablony/Dodané"
cp "$work"/Lorvo/Šablony/*.html "$work/Lorvo/Šablony/Dodané/"
find "$work" -exec touch --no-dereference --date="@${SOURCE_DATE_EPOCH:-$(date +%s)}" {} +
make_zip() { (cd "$work" && find Lorvo -type f | LC_ALL=C sort | zip -q -X -UN=UTF8 "$1" -@); }
rm -f "$name.zip" "$name-aktualizace.zip"
make_zip "$name.zip"
rm "$work/Lorvo/data.mdb" "$work"/Lorvo/Šablony/*.html
make_zip "$name-aktualizace.zip"
