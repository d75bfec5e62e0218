#!/usr/bin/env bash
# The life of the Debian package on a bare machine, see bare_debian.sh: lorvo.deb lies beside this
# script. For a machine that is thrown away: it installs and removes packages.
set -euo pipefail
cd "$(dirname "$0")"
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
folder=$HOME/Lorvo

# start_lorvo PICTURE: as the desktop's menu starts it; closed as a session's end closes it.
start_lorvo() {
  xvfb-run -a -s '-screen 0 1280x800x24' bash -c '
    lorvo & program=$!
    window=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name Lorvo | head -n 1)
    sleep 3
    scrot --overwrite "$1"
    kill $program
    wait $program' bash "$1"
}
# The same package as a higher version brings it: other data and templates to begin with.
make_higher() {
  rm -rf higher
  dpkg-deb --raw-extract lorvo.deb higher
  sed -i 's/^Version: .*/Version: 9.9.9/' higher/DEBIAN/control
  echo 'other breeds' > higher/usr/share/lorvo/data.mdb
  for name in Diplomy Platby; do echo '<html>nová</html>' > "higher/usr/share/lorvo/Šablony/$name.html"; done
  (cd higher && find usr -type f -exec md5sum {} + > DEBIAN/md5sums)
  dpkg-deb --root-owner-group --build higher higher.deb > /dev/null
}

sums() { (cd "$folder" && sha256sum data.mdb Lorvo.settings Šablony/Diplomy.html); }

apt-get -q update
apt-get -q install -y --no-install-recommends ./lorvo.deb
apt-get -q install -y --no-install-recommends xvfb xauth xdotool scrot sqlite3 fonts-dejavu-core
lorvo --version
start_lorvo "$PWD/installed.png"
[ -e "$folder/data.mdb" ]
lorvo-spravce kontrola
lorvo-spravce seznam plemena "$PWD/plemena.xlsx"
[ -s plemena.xlsx ]

sqlite3 "$folder/data.mdb" "INSERT INTO Kruhy (Nazev) VALUES ('Kruh pořadatelky')"
echo '<html>moje</html>' > "$folder/Šablony/Diplomy.html"
before=$(sums)
make_higher
apt-get -q install -y ./higher.deb
dpkg-query -W -f '${Version}\n' lorvo
[ "$(sums)" = "$before" ] || { echo "FAILED: the update touched the clerk's files"; exit 1; }
start_lorvo "$PWD/updated.png"
[ "$(sqlite3 "$folder/data.mdb" 'SELECT Nazev FROM Kruhy')" = "Kruh pořadatelky" ]
grep -q moje "$folder/Šablony/Diplomy.html"
grep -q nová "$folder/Šablony/Platby.html"
for program in Lorvo LorvoSpravce; do cmp "$folder/$program" "/usr/libexec/lorvo/$program"; done

before=$(sums)
apt-get -q purge -y lorvo
[ ! -e /usr/bin/lorvo ] && [ ! -L /usr/bin/lorvo-spravce ] && [ ! -e /usr/libexec/lorvo ] && [ ! -e /usr/share/lorvo ]
[ "$(sums)" = "$before" ] || { echo "FAILED: the removal touched the clerk's files"; exit 1; }
echo "Installed, started, updated, removed; the clerk's files are there byte for byte."
