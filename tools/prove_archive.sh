#!/usr/bin/env bash
# The archive on a bare machine, see bare_debian.sh: lorvo.tar.gz lies beside this script. The
# libraries that its user installs are the arguments.
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/bare_desk.sh
. "$here/bare_desk.sh"
cd "$here"

apt-get -q update
apt-get -q install -y --no-install-recommends "$@"
useradd --create-home pokladna
home=/home/pokladna
unpacked="$home/Programy pro výstavu"
as pokladna mkdir "$unpacked"
as pokladna tar -xz -C "$unpacked" < lorvo.tar.gz
lorvo=$(echo "$unpacked"/lorvo-*/bin/lorvo)
check_libraries "${lorvo%/bin/lorvo}"/libexec/lorvo/*
as pokladna "$lorvo" --version
install_display

start pokladna "$here/unpacked.png" "$lorvo"
as pokladna sqlite3 "$home/Lorvo/data.mdb" "INSERT INTO Kruhy (Nazev) VALUES ('Kruh pořadatelky')"
before=$(cd "$home/Lorvo" && sha256sum data.mdb)
as pokladna tar -xz -C "$unpacked" < lorvo.tar.gz
[ "$(cd "$home/Lorvo" && sha256sum data.mdb)" = "$before" ] || fail "unpacking again touched the data"
start pokladna "$here/unpacked-again.png" "$lorvo"
[ "$(sqlite3 "$home/Lorvo/data.mdb" 'SELECT Nazev FROM Kruhy')" = "Kruh pořadatelky" ]
as pokladna "${lorvo}-spravce" kontrola
echo "Unpacked, started, unpacked again, started; the data is there."
