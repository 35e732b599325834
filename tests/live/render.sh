#!/usr/bin/env bash
# Pictures of a whole directory with their index page, and the pixels in which two pages differ.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
export PATH=$PWD/build/release/bin:$PATH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "render.sh: $*" >&2; exit 1; }

odsrender samples --out "$work/all"
for page in samples/*.ods; do
  name=$(basename "$page" .ods)
  odsrender "$page" "$work/alone.png"
  cmp -s "$work/alone.png" "$work/all/$name.png" || fail "$name.png is not the picture of the page alone"
  grep -q "src=\"$name.png\"" "$work/all/index.html" || fail "the index page leaves $name out"
done

mkdir "$work/pages"
cp samples/menu.ods "$work/pages/Bä <1>.ods"
echo 'no page' >"$work/pages/broken.ods"
! odsrender "$work/pages" --out "$work/some" 2>/dev/null || fail "a file that is no page is not told"
grep -q 'src="B%C3%A4%20%3C1%3E.png".*Bä &lt;1&gt;' "$work/some/index.html" || fail "a name is not quoted"
[ "$(ls "$work/some")" = "$(printf '%s\n' 'Bä <1>.png' index.html)" ] || fail "a broken page stops the others"

[ "$(odsrender --compare samples/menu.ods samples/menu.ods "$work/same.png")" = "0 pixels differ" ] || fail "same"
odspage dump samples/menu.ods | sed '0,/"pleft": [0-9]*/s//"pleft": 1/' | odspage build - "$work/moved.ods"
! odsrender --compare samples/menu.ods "$work/moved.ods" "$work/marks.png" >/dev/null || fail "a moved object is missed"
[ "$(convert "$work/marks.png" -fill black +opaque 'rgb(220,0,0)' -fill white -opaque 'rgb(220,0,0)' \
  -format '%[fx:mean>0]' info:)" = 1 ] || fail "no pixel is marked"
! odsrender samples/menu.ods samples/menu.ods 2>/dev/null || fail "a page was replaced by its picture"
odsrender --size 64 samples/menu.ods "$work/small.png"
[ "$(identify -format '%[fx:max(w,h)]' "$work/small.png")" = 64 ] || fail "the small picture's size"
echo "Pictures of a directory and of differences are as they should be."
