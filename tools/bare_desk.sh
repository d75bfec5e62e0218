# Sourced on a bare machine, see bare_debian.sh: two clerks, a virtual display, and what is asked of
# every package.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

fail() {
  echo "FAILED: $1"
  exit 1
}

# check_libraries PROGRAM...: every shared library is there. Asked before anything but the package is
# installed, it shows that what the package depends on is enough.
check_libraries() {
  local missing
  missing=$(ldd "$@" | grep 'not found' | sort -u) || true
  [ -z "$missing" ] || fail "shared libraries are missing: $missing"
}

install_display() {
  apt-get -q install -y --no-install-recommends xvfb xauth xdotool scrot sqlite3 fonts-dejavu-core
}

# as CLERK COMMAND...: as that user, with nothing of the administrator's surroundings.
as() {
  local clerk=$1
  shift
  (cd "/home/$clerk" && runuser -u "$clerk" -- env -i HOME="/home/$clerk" PATH=/usr/bin:/bin LC_ALL=C.UTF-8 "$@")
}

# start CLERK PICTURE COMMAND...: starts the program as the desktop's menu does, takes its picture,
# ends it as a session's end does. Fails when no main window comes up or the program ends badly.
start() {
  local clerk=$1 picture=$2
  shift 2
  as "$clerk" xvfb-run -a -s '-screen 0 1280x800x24' bash -c '
    picture=$1
    shift
    "$@" & program=$!
    timeout 60 xdotool search --sync --onlyvisible --pid $program --name "^Lorvo$" > /dev/null || exit 1
    sleep 3
    scrot --overwrite "$picture"
    kill $program
    wait $program' bash "/home/$clerk/picture.png" "$@" || fail "the program did not start or end well"
  mv "/home/$clerk/picture.png" "$picture"
}
