#!/usr/bin/env bash
# Installs the Debian packages that are missing. Usage: install_packages.sh
#   run|test|coverage|papers|release|windows
# "run" is what building and starting the program takes, "test" adds what its tests and
# measurements take, "coverage" what counting the lines takes that they run, "papers" what looking
# at the papers takes, "release" the packages for Linux, "windows" what the build for Windows and
# its proof under Wine take. Quick when nothing is missing: it then asks the package database alone.
set -euo pipefail

packages=(
  ca-certificates ccache cmake g++ git ninja-build pkg-config
  qt6-base-dev libgl-dev
  libsqlitecpp-dev libsqlite3-dev libicu-dev libzip-dev
  libxlsxwriter-dev
  librsvg2-bin         # rsvg-convert, which draws the icons
  fp-utils             # chmcmd, which compiles the help file
  qt6-translations-l10n # Czech texts of the toolkit's own menus
  fonts-dejavu-core
)
if [ "${1:-run}" = coverage ]; then
  packages+=(gcovr)
fi
if [ "${1:-run}" = test ] || [ "${1:-run}" = coverage ]; then
  packages+=(clang-format-14 libgtest-dev libgmock-dev libbenchmark-dev libreoffice-writer-nogui poppler-utils)
  packages+=(fonts-liberation fonts-urw-base35) # with DejaVu the three sets that papers are laid out with
fi
if [ "${1:-run}" = papers ]; then
  packages+=(libreoffice-writer-nogui chromium poppler-utils fonts-liberation fonts-urw-base35)
fi
if [ "${1:-run}" = release ]; then
  packages+=(dpkg-dev lintian desktop-file-utils appstream) # what packs, and what judges it
fi
if [ "${1:-run}" = windows ]; then
  packages+=(
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev make dpkg-dev patch tcl python3 icu-devtools
    qt6-base-dev-tools nsis wine wine64 fonts-wine xvfb xauth xdotool scrot icoutils zip unzip
    desktop-file-utils appstream lintian debootstrap
  )
fi
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ "${1:-run}" = run ]; then
  packages+=(xvfb xauth xdotool scrot) # a virtual display and a picture of it
fi

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if ! command -v apt-get >/dev/null; then
  echo "This machine has no apt-get. Please install: ${missing[*]}" >&2
  exit 1
fi
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Please install as root: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
