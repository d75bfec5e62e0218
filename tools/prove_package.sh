#!/usr/bin/env bash
# The life of the Debian package on a bare machine, see bare_debian.sh: lorvo.deb lies beside this
# script. For a machine that is thrown away: it installs and removes packages.
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=tools/bare_desk.sh
. "$here/bare_desk.sh"
cd "$here"

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
check_libraries /usr/libexec/lorvo/*
lorvo --version
install_display
useradd --create-home pokladna
useradd --create-home katalog
folder=/home/pokladna/Lorvo

start pokladna "$here/installed.png" lorvo
[ -e "$folder/data.mdb" ] || fail "no data was made"
start katalog "$here/second-clerk.png" lorvo
cmp "$folder/data.mdb" /home/katalog/Lorvo/data.mdb || fail "two clerks do not begin alike"
start pokladna "$here/own-folder.png" lorvo '/home/pokladna/Výstava psů 2026'
as pokladna lorvo-spravce kontrola
as pokladna lorvo-spravce seznam plemena plemena.xlsx
[ -s /home/pokladna/plemena.xlsx ] || fail "no spreadsheet was made"

as pokladna sqlite3 "$folder/data.mdb" "INSERT INTO Kruhy (Nazev) VALUES ('Kruh pořadatelky')"
echo '<html>moje</html>' > "$folder/Šablony/Diplomy.html"
before=$(sums)
make_higher
apt-get -q install -y ./higher.deb
dpkg-query -W -f '${Version}\n' lorvo
[ "$(sums)" = "$before" ] || fail "the update touched the clerk's files"
start pokladna "$here/updated.png" lorvo
[ "$(sqlite3 "$folder/data.mdb" 'SELECT Nazev FROM Kruhy')" = "Kruh pořadatelky" ]
grep -q moje "$folder/Šablony/Diplomy.html"
grep -q nová "$folder/Šablony/Platby.html"
for program in Lorvo LorvoSpravce; do cmp "$folder/$program" "/usr/libexec/lorvo/$program"; done

before=$(sums)
apt-get -q purge -y lorvo
for path in /usr/bin/lorvo /usr/bin/lorvo-spravce /usr/libexec/lorvo /usr/share/lorvo; do
  [ ! -e "$path" ] && [ ! -L "$path" ] || fail "$path is left"
done
[ "$(sums)" = "$before" ] || fail "the removal touched the clerk's files"
echo "Installed, started, updated, removed; the clerk's files are there byte for byte."
