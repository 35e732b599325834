#!/usr/bin/env bash
# Objects on their way between two running editors, and to and from a text editor.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"

menu=$work/menu.ods record=$work/record.ods
cp samples/*.bmp samples/*.wav samples/menu.ods "$work/"
cp samples/record.ods "$record"
record_title=Product menu_title='Harbour Supply - Main Menu'
on() { # TITLE KEY...: keys for a page's canvas
  xdotool windowactivate --sync "$(window "$1")"
  sleep 0.2
  shift
  keys "$@"
}
# The objects of a file from a place on, without what belongs to the page that they are on.
bodies() { # FILE FIRST
  json_value "$1" "[{k: v for k, v in o.items() if k not in ('tbindex', 'ctlname')} for o in p['objects'][$2:]]"
}
clicked_label() { read -r left top <<<"$(origin_of "$(window "$menu_title")")"; xdotool mousemove $((left + 60)) $((top + 105)) click 1; sleep 0.3; }

start_editor "$record_title" "$record"
other_pid=$editor_pid
trap 'finish; kill $other_pid 2>/dev/null || true' EXIT
start_editor "$menu_title" "$menu"
count=$(json_value "$record" 'len(p["objects"])')

echo "All objects of a page go from one editor to another, byte for byte"
on "$menu_title" ctrl+a ctrl+c
on "$record_title" ctrl+v ctrl+s
wait_until eval '[ "$(json_value "$record" "len(p[\"objects\"])")" -gt "$count" ]'
[ "$(bodies "$record" "$count")" = "$(bodies "$menu" 0)" ] || fail "The pasted objects are others"

echo "What was copied reads as JSON in a text editor, and what that writes can be pasted"
on "$record_title" Escape
clicked_label
on "$menu_title" Escape
clicked_label
on "$menu_title" ctrl+c
xclip -o -selection clipboard -target UTF8_STRING >"$work/clip.json"
python3 - "$work/clip.json" <<'PY'
import json, sys
clip = json.load(open(sys.argv[1]))
assert len(clip["objects"]) == 1, clip
clip["objects"][0]["kindextra"]["Caption"] = "Written by hand"
json.dump(clip, open(sys.argv[1], "w"))
PY
xclip -i -selection clipboard "$work/clip.json"
on "$record_title" ctrl+v ctrl+s
sleep 0.5
[ "$(json_value "$record" 'p["objects"][-1]["kindextra"]["Caption"]')" = 'Written by hand' ] || fail "The text was not pasted"

echo "Text that holds no objects changes nothing"
saved=$(md5sum <"$record")
for text in 'plain text' '{"objects": [[]]}' "$(head -c 100000 /dev/zero | tr '\0' '[')"; do
  printf '%s' "$text" | xclip -i -selection clipboard
  on "$record_title" ctrl+v ctrl+s
done
[ "$(md5sum <"$record")" = "$saved" ] || fail "Foreign text changed the page"
kill -0 $other_pid $editor_pid || fail "An editor ended"

echo "The end of the editor that copied harms nobody"
on "$menu_title" ctrl+c
end_editor
on "$record_title" ctrl+v ctrl+s
kill -0 $other_pid || fail "The editor ended"
echo "The clipboard carried all of it."
