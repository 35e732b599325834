#!/usr/bin/env bash
# Many objects by real mouse and keys: the rubber band, the walk with Tab, the context menu, and back again.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"

page=$work/record.ods
cp samples/*.ods samples/*.bmp samples/*.wav "$work/"
start_editor Product "$page"
read -r left top <<<"$(origin_of "$(canvas_id)")"
on_canvas() {
  xdotool windowactivate --sync "$(canvas_id)"
  sleep 0.2
  keys "$@"
}
count() { json_value "$page" 'len(p["objects"])'; }
# How many objects a rectangle encloses, or touches.
counted() { # enclosed|touched LEFT TOP RIGHT BOTTOM
  json_value "$page" "(lambda inside, l, t, r, b: sum(
    (l <= o['pleft'] and t <= o['ptop'] and o['pleft'] + o['pwidth'] <= r and o['ptop'] + o['pheight'] <= b) if inside else
    (o['pleft'] < r and l < o['pleft'] + o['pwidth'] and o['ptop'] < b and t < o['ptop'] + o['pheight'])
    for o in p['objects']))('$1' == 'enclosed', $2, $3, $4, $5)"
}
band() { drag $((left + $1)) $((top + $2)) $((left + $3)) $((top + $4)); }
saves_as() { # COUNT: after a save
  on_canvas ctrl+s
  sleep 0.3
  [ "$(count)" = "$1" ] || fail "$2: $(count) objects, $1 expected"
}
comes_back() {
  on_canvas ctrl+z ctrl+s
  sleep 0.3
  cmp samples/record.ods "$page" || fail "Undo did not bring the page back"
}
all=$(count)

echo "A band selects what it encloses, with Shift what it touches"
inside=$(counted enclosed 5 250 240 345) touched=$(counted touched 5 250 240 345)
[ "$inside" -gt 1 ] && [ "$touched" -gt "$inside" ] || fail "The rectangle encloses $inside and touches $touched"
band 5 250 240 345
on_canvas Delete
saves_as $((all - inside)) "Band"
comes_back
on_canvas Escape
xdotool keydown shift
band 5 250 240 345
xdotool keyup shift
on_canvas Delete
saves_as $((all - touched)) "Band with Shift"
comes_back

echo "Tab makes one object current, Ctrl+A chooses all"
on_canvas Escape Tab Delete
saves_as $((all - 1)) "Tab"
comes_back
on_canvas ctrl+a Delete
saves_as 0 "All"
comes_back

echo "The context menu brings an object to the front"
caption=$(json_value "$page" 'p["objects"][0]["kindextra"]["Caption"]')
on_canvas Escape
xdotool mousemove $((left + 40)) $((top + 25)) click 3
sleep 0.6
keys f
on_canvas ctrl+s
sleep 0.3
[ "$(json_value "$page" 'p["objects"][-1]["kindextra"]["Caption"]')" = "$caption" ] || fail "\"$caption\" is not in front"
comes_back
end_editor
echo "The mouse did all of it."
