#!/usr/bin/env bash
# Puts every paper of a show out by both routes, lays it out with three sets of fonts, documents by
# the office program and pages by the browser, and compares the numbers of pages.
# Usage: look_at_papers.sh FOLDER [DATA.MDB]
# Without a database it makes a club show. FOLDER is filled with documents, pages, PDFs and a
# picture of each paper's first page. Installs what is missing; needs no display.
set -euo pipefail
folder=$(realpath -m "${1:?usage: look_at_papers.sh FOLDER [DATA.MDB]}")
show=${2:-}
cd "$(dirname "$0")/.."
export LC_ALL=C.UTF-8
tools/install_packages.sh papers
cmake --preset release >/dev/null
cmake --build --preset release --target make_show make_papers >/dev/null
mkdir -p "$folder/pdf"
if [ -z "$show" ]; then
  show=$folder/data.mdb
  [ -e "$show" ] || build/release/tools/make_show --numbers all --out "$show"
fi
build/release/tools/make_papers --show "$show" --out "$folder"

# A font configuration that knows one folder, and what stands in for the fonts that are named.
font_set() { # name folder sans serif
  local config=$folder/pdf/$1.conf family
  {
    echo "<?xml version=\"1.0\"?><fontconfig><dir>/usr/share/fonts/$2</dir>"
    echo "<cachedir>$folder/pdf/$1.cache</cachedir>"
    for family in Arial Tahoma Verdana sans-serif; do
      echo "<alias binding=\"same\"><family>$family</family><prefer><family>$3</family></prefer></alias>"
    done
    for family in "Times New Roman" serif; do
      echo "<alias binding=\"same\"><family>$family</family><prefer><family>$4</family></prefer></alias>"
    done
    echo "</fontconfig>"
  } >"$config"
  mkdir -p "$folder/pdf/$1"
}
font_set Liberation truetype/liberation "Liberation Sans" "Liberation Serif"
font_set URW opentype/urw-base35 "Nimbus Sans" "Nimbus Roman"
font_set DejaVu truetype/dejavu "DejaVu Sans" "DejaVu Serif"

different=0
count() { # paper
  local set pages first='' line
  line=$(basename "$1")
  for set in Liberation URW DejaVu; do
    pages=$(pdfinfo "$folder/pdf/$set/$(basename "$1").pdf" | sed -n 's/^Pages: *//p')
    line+="; $set $pages"
    [ "${first:=$pages}" = "$pages" ] || different=1
  done
  echo "$line"
}

for set in Liberation URW DejaVu; do
  export FONTCONFIG_FILE=$folder/pdf/$set.conf
  SECONDS=0
  soffice "-env:UserInstallation=file://$folder/pdf/profile" --headless --convert-to pdf \
    --outdir "$folder/pdf/$set" "$folder"/*.docx >/dev/null
  for pdf in "$folder/pdf/$set"/*.pdf; do mv "$pdf" "${pdf%.pdf}.docx.pdf"; done
  for page in "$folder"/*.html; do
    chromium --headless --no-sandbox --disable-gpu \
      --print-to-pdf="$folder/pdf/$set/$(basename "$page").pdf" "file://$page" 2>/dev/null
  done
  echo "laid out with $set in $SECONDS s"
done
unset FONTCONFIG_FILE
for paper in "$folder"/*.docx "$folder"/*.html; do
  count "$paper"
  pdftoppm -r 50 -l 1 -png -singlefile "$folder/pdf/Liberation/$(basename "$paper").pdf" "$folder/$(basename "$paper")"
done
[ $different -eq 0 ] || { echo "Numbers of pages differ with the fonts." >&2; exit 1; }
echo "Every paper has the same pages with three sets of fonts."
