#!/usr/bin/env bash
# Builds Lorvo for 64-bit Windows and puts it together with all that it needs beside itself.
#   program.sh FOLDER   the folder of prefix.sh; or set LORVO_WINDOWS
# The result is FOLDER/stage/Lorvo: what the installer and the zip hold.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "${1:-}"
export LORVO_WINDOWS=$windows
cd "$here/../.."
target=x86_64-w64-mingw32
stage=$windows/stage/Lorvo

cmake --preset windows -DLORVO_TESTS=OFF
cmake --build --preset windows --parallel
rm -rf "$stage"
cmake --install build/windows --prefix "$stage" --strip
cp build/windows/packaging/lorvo.ico "$windows/stage/" # for the installer

# Only these plug-ins are asked for: the platform and the look of the system.
mkdir -p "$stage"/{platforms,styles,translations}
cp "$prefix/plugins/platforms/qwindows.dll" "$stage/platforms/"
cp "$prefix"/plugins/styles/*.dll "$stage/styles/"
cp /usr/share/qt6/translations/qtbase_cs.qm "$stage/translations/"
printf '[Paths]\nPrefix = .\nPlugins = .\nTranslations = translations\n' > "$stage/qt.conf"

# Libraries by the import tables, until no new one is found.
found=1
while [ $found -gt 0 ]; do
  found=0
  while read -r name; do
    if [ -e "$prefix/bin/$name" ] && [ ! -e "$stage/$name" ]; then
      cp "$prefix/bin/$name" "$stage/"
      found=1
    fi
  done < <(find "$stage" -name '*.dll' -o -name '*.exe' | xargs -d '\n' -n 1 $target-objdump -p |
    awk '/DLL Name:/ { print $3 }' | sort -u)
done
chmod -R u=rwX,go=rX "$stage"
du -sh "$stage"
