#!/usr/bin/env bash
# The HTML templates of all sample pages and of a gallery with every kind and action: html-validate, the Nu checker, axe
# and the boxes of all elements, in headless Chromium. Also calls the converter library as other programs do.
#   tests/live/html.sh [--pictures FOLDER]     pictures of the templates go to the folder
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
programs=$PWD/build/release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

source tests/live/support/node_tools.sh

cp -r tests/data/pages "$work/data"
cp -r samples "$work/samples"
rm -f "$work/data/"*.hdo*
(cd "$tools" && node gallery.mjs "$work/gallery")
cp samples/*.bmp "$work/data"
for picture in logo a b 'a "b" c' 'back ground'; do
  cp samples/lamp1.bmp "$work/gallery/$picture.bmp"
done
for json in "$work/gallery/"*.json; do
  "$programs/odspage" build "$json" "${json%.json}.ods"
done
for page in "$work/samples/"*.ods; do
  "$programs/odspage" dump "$page" >"${page%.ods}.json"
done
"$programs/odspage" html "$work"/{data,samples,gallery}

python3 - "$programs/libods2hts.so" "$work/samples/menu.ods" <<'PY'
import ctypes, os, sys
library, page = ctypes.CDLL(sys.argv[1]), sys.argv[2]
library.ConvertOdsHts.restype = ctypes.c_int16
template = page[:-3] + "hts"
kept = open(template, "rb").read()
os.remove(template)
assert library.ConvertOdsHts(("C:" + page.replace("/", "\\")).encode("cp1252")) != 0
assert open(template, "rb").read() == kept, "the library's template differs from the command's"
assert library.ConvertOdsHts(b"C:\\no\\such\\page.ods") == 0
PY

# The canvas's pictures, to compare the templates with.
for page in "$work"/{data,samples,gallery}/*.ods; do
  "$programs/odsrender" "$page" "${page%.ods}.canvas.png" || true
done
mkdir -p "$work/pixels"
# Every link of the samples leads to a file in exactly this spelling.
(cd "$work/samples" && grep -ohE '(href|src)="[^":@]+"' *.hts | cut -d'"' -f2 | sort -u | xargs -n1 ls >/dev/null)

# Other languages use the library as it is installed.
for component in ods2hts dev; do
  cmake --install build/release --prefix "$work/usr" --component $component >/dev/null
done
cat >"$work/use.c" <<'C'
#include <ods2hts.h>
#include <stdio.h>
int main(void)
{
    puts(ConvertOdsHts("no such page.ods") == 0 ? ConvertOdsHtsMessage() : "converted");
    return 0;
}
C
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$work/usr" -name ods2hts.pc)")
installed=(pkg-config --define-variable=prefix="$work/usr")
gcc -std=c99 -pedantic -Wall -Werror "$work/use.c" -o "$work/use" $("${installed[@]}" --cflags --libs ods2hts)
[ "$(LD_LIBRARY_PATH=$("${installed[@]}" --variable=libdir ods2hts) "$work/use")" = "no such file" ]

(cd "$tools" && node check.mjs --canvas "${PIXELS:-$work/pixels}" "$@" "$work/data" "$work/samples" "$work/gallery")
