#!/usr/bin/env bash
# The real program, by mouse and keyboard: an object tool dragged onto the page and edited, and a column of the sample
# database that becomes a bound Text Box.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"
source scripts/sample-database

save() {
  activate 'Corvanta Form Editor'
  keys alt+f s
  sleep 0.5
}

echo "A Button tool is dragged onto the page, edited in its dialog and saved"
cp samples/*.ods samples/*.bmp samples/*.wav "$work/"
start_editor Product "$work/record.ods"
before=$(json_value "$work/record.ods" 'len(p["objects"])')
read -r left top <<<"$(origin_of "$(canvas_id)")"
read -r main_left main_top <<<"$(origin_of "$(window 'Corvanta Form Editor')")"
drag $((main_left + 412)) $((main_top + 52)) $((left + 400)) $((top + 330))
xdotool mousemove $((left + 410)) $((top + 340)) click --repeat 2 --delay 40 1
wait_until has_window 'Button Properties'
activate 'Button Properties'
keys alt+i shift+Tab ctrl+a # the caption stands above the image; Credits has its letter, too
type_text 'Go home'
keys alt+f
wait_until has_window 'Font'
activate 'Font'
keys alt+b
keys alt+c space
wait_until has_window 'Color'
activate 'Color'
keys alt+h ctrl+a
type_text '#ff0000'
keys Return
wait_until no_window 'Color'
activate 'Font'
keys Return
wait_until no_window 'Font'
activate 'Button Properties'
keys alt+a
type_text 'Go'
keys alt+p
wait_until has_window 'Action Properties'
activate 'Action Properties'
type_text 'MENU'
keys Return
wait_until no_window 'Action Properties'
activate 'Button Properties'
keys Return
wait_until no_window 'Button Properties'
save
"$programs/odspage" dump "$work/record.ods" >"$work/record.json"
python3 - "$work/record.json" "$before" <<'PY'
import json, sys
page = json.load(open(sys.argv[1]))
assert len(page["objects"]) == int(sys.argv[2]) + 1, "one object more"
button = page["objects"][-1]
assert button["kind"] == 1 and (button["pleft"], button["ptop"]) == (400, 330), (button["pleft"], button["ptop"])
assert button["kindextra"]["Caption"] == "Go home", button["kindextra"]["Caption"]
assert button["kindextra"]["font"]["FontBold"] is True, button["kindextra"]["font"]
assert button["kindextra"]["font"]["ForeColor"] == 0x0000FF, button["kindextra"]["font"]
assert button["actlist"] == {"code": 1, "page": "MENU"}, button["actlist"]
PY
end_editor

echo "A column of the sample database becomes a bound Text Box at the place where it is dropped"
start_editor Product "$work/record.ods"
read -r left top <<<"$(origin_of "$(canvas_id)")"
read -r odbc_left odbc_top <<<"$(origin_of "$(window 'ODBC Toolbar')")"
click_odbc() { xdotool mousemove $((odbc_left + $1)) $((odbc_top + $2)) sleep 0.1 click 1 sleep 0.4; }
click_odbc 205 51 # "Select"
wait_until has_window 'Select Data Source'
activate 'Select Data Source'
type_text 'Corvanta'
keys Return
wait_until no_window 'Select Data Source'
sleep 0.5
click_odbc 40 173 # the first table: Customers
drag $((odbc_left + 43)) $((odbc_top + 328)) $((left + 420)) $((top + 300)) # its second column: Name
save
"$programs/odspage" dump "$work/record.ods" >"$work/record.json"
python3 - "$work/record.json" <<'PY'
import json, sys
box = json.load(open(sys.argv[1]))["objects"][-1]
assert box["kind"] == 5 and (box["pleft"], box["ptop"]) == (420, 300), (box["kind"], box["pleft"], box["ptop"])
assert (box["ctlname"], box["datacol"]) == ("Name", "Customers.Name"), (box["ctlname"], box["datacol"])
assert (box["kindextra"]["inptype"], box["kindextra"]["maxlen"]) == (0, 40), box["kindextra"]
PY
end_editor
echo "Both landed where they were dropped."
