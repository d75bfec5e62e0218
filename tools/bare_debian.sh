#!/usr/bin/env bash
# A Debian 12 with nothing on it, to prove on it what the README promises. As root.
#   tools/bare_debian.sh FOLDER COMMAND [ARGUMENT...]
# The first use makes FOLDER/base; each use works on a copy of it that is thrown away.
#   commands  runs ./test.sh and ./run.sh on a clone of the committed state
#   package LORVO.deb
#             installs the package by apt, asks whether every shared library came with it, starts
#             it as two clerks on a virtual display, takes pictures, updates it to a higher version
#             over changed data and removes it; the data must stay byte for byte
#   archive LORVO.tar.gz LIBRARY...
#             unpacks the archive, installs the packages of its libraries, starts it from there
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
bare=$(cd "$1" && pwd)
command=$2
shift 2

if [ ! -e "$bare/base/ready" ]; then
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1)
  debootstrap --variant=minbase bookworm "$bare/base" "$mirror"
  touch "$bare/base/ready"
fi
root=$bare/$command
clean() {
  for part in proc dev root/.cache/ccache; do umount -R -l "$root/$part" 2> /dev/null || true; done
}
clean
rm -rf --one-file-system "$root"
cp -a "$bare/base" "$root"
trap clean EXIT
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
mount --make-rslave "$root/dev"
cp /etc/resolv.conf /etc/hosts "$root/etc/"
# Compiling again what was compiled before proves nothing: CCACHE_DIR lends the machine's cache.
if [ -n "${CCACHE_DIR:-}" ]; then
  mkdir -p "$root/root/.cache/ccache"
  mount --bind "$CCACHE_DIR" "$root/root/.cache/ccache"
fi
in_root() {
  env -i CCACHE_BASEDIR=/root/lorvo CCACHE_NOHASHDIR=1 PATH=/usr/sbin:/usr/bin:/sbin:/bin \
    HOME=/root TERM=dumb chroot "$root" "$@"
}

prove_commands() {
  git clone -q --no-hardlinks "$here" "$root/root/lorvo"
  in_root /root/lorvo/test.sh
  in_root /root/lorvo/run.sh
  cp "$root/root/lorvo/build/main-window.png" "$bare/commands.png"
  echo "Both commands hold; picture: $bare/commands.png"
}

prove_package() {
  cp "$1" "$root/root/lorvo.deb"
  cp "$here"/tools/{bare_desk,prove_package}.sh "$root/root/"
  in_root bash /root/prove_package.sh
  cp "$root"/root/*.png "$bare/"
}

prove_archive() {
  cp "$1" "$root/root/lorvo.tar.gz"
  shift
  cp "$here"/tools/{bare_desk,prove_archive}.sh "$root/root/"
  in_root bash /root/prove_archive.sh "$@"
  cp "$root"/root/*.png "$bare/"
}

"prove_$command" "$@"
