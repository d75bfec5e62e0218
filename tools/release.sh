#!/usr/bin/env bash
# Makes all packages of a release and their sums, from a tag, in a clone of its own.
#   tools/release.sh TAG OUT [WINDOWS]
# TAG      what is packed, v1.1.0; it must agree with the version in CMakeLists.txt
# OUT      the folder that takes the packages
# WINDOWS  the folder of tools/windows/prefix.sh; without it no package for Windows is made
set -euo pipefail
tag=$1
out=$(mkdir -p "$2" && cd "$2" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

git clone --quiet --no-hardlinks --branch "$tag" "$here" "$work/lorvo-${tag#v}"
cd "$work/lorvo-${tag#v}"
version=$(sed -n 's/^project(Lorvo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ "v$version" = "$tag" ] || { echo "The tag $tag holds version $version." >&2; exit 1; }
# What is packed carries the time of its last change, not that of its packing.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH

tools/install_packages.sh release
git archive --prefix "lorvo-$version/" HEAD | gzip --best --no-name > "$out/lorvo-$version-source.tar.gz"

# Linux: compiled as the distribution compiles its own packages.
(
  eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
  cmake --preset package
)
cmake --build --preset package --parallel
(cd build/package && LC_ALL=C.UTF-8 cpack) # it reads the names of files by the locale
cp build/package/lorvo_*.deb build/package/lorvo-*.tar.gz "$out"

if [ -n "${3:-}" ]; then
  tools/windows/program.sh "$3"
  tools/windows/pack.sh "$3" "$version" "$out"
fi

rm -f "$out/lorvo-$version-SHA256SUMS"
(cd "$out" && sha256sum -- *"$version"* > "lorvo-$version-SHA256SUMS")
ls -l "$out"
