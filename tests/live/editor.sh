#!/usr/bin/env bash
# The real program, used from outside: opening, saving under another name, dragging, menus, minimising.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"

save_as() {
  activate 'Corvanta Form Editor'
  keys alt+f
  keys a
  wait_until has_window 'Save.*'
  xdotool key ctrl+a
  type_text "$1"
  keys Return
  wait_until test -s "$1"
}

echo "A page saved under another name is the same file"
cp samples/record.ods "$work/record.ods"
start_editor Product "$work/record.ods"
save_as "$work/copy.ods"
cmp "$work/record.ods" "$work/copy.ods" || fail "The copy differs"

echo "Minimising the main window hides the canvas, restoring shows it"
xdotool windowminimize "$(window 'Corvanta Form Editor')"
canvas_gone() { ! canvas_found; }
wait_until canvas_gone
main=$(xdotool search --name '^Corvanta Form Editor$' | tail -n 1)
xdotool windowmap "$main" windowactivate "$main"
wait_until canvas_found
end_editor

echo "A page without a size is saved as it was, and one that does not fit on the screen too"
cp tests/data/pages/empty.ods "$work/empty.ods"
"$programs/odspage" dump samples/record.ods | sed 's/"bkght": 420/"bkght": 980/; s/"bkgwd": 600/"bkgwd": 2000/' >"$work/huge.json"
"$programs/odspage" build "$work/huge.json" "$work/huge.ods"
for page in empty:Page huge:Product; do
  rm -f "$work/copy.ods"
  start_editor "${page#*:}" "$work/${page%:*}.ods"
  sleep 1.5
  save_as "$work/copy.ods"
  cmp "$work/${page%:*}.ods" "$work/copy.ods" || fail "Opening changed ${page%:*}.ods"
  end_editor
done

echo "A dragged label moves by the dragged pixels, and the saved file shows it"
cp samples/menu.ods samples/*.bmp samples/*.wav "$work/"
start_editor 'Harbour Supply - Main Menu' "$work/menu.ods"
read -r left top <<<"$(origin_of "$(canvas_id)")"
before=$(json_value "$work/menu.ods" '[(o["pleft"], o["ptop"]) for o in p["objects"] if o["kind"] == 4][0]')
drag $((left + 60)) $((top + 105)) $((left + 97)) $((top + 126))
activate 'Corvanta Form Editor'
keys alt+f
keys s
sleep 0.5
after=$(json_value "$work/menu.ods" '[(o["pleft"], o["ptop"]) for o in p["objects"] if o["kind"] == 4][0]')
[ "$before" = "(30, 90)" ] && [ "$after" = "(67, 111)" ] || fail "The label went from $before to $after"

echo "Alt+O on the canvas opens the main window's Object menu"
xdotool windowactivate --sync "$(canvas_id)"
wait_until no_menu
keys alt+o
wait_until menu_open
keys Escape Escape

echo "An open dialog stays in front of the windows that it switched off, whichever is clicked"
last_is() { [ "$(xprop -id "$(xprop -root _NET_CLIENT_LIST_STACKING | sed 's/.* //')" WM_NAME)" = "WM_NAME(STRING) = \"$1\"" ]; }
for dialog in 'Page Properties':alt+p:p 'Object List':alt+o:l 'Support File Directory':alt+f:d; do
  IFS=: read -r title menu item <<<"$dialog"
  activate "$canvas_title"
  keys "$menu" "$item"
  wait_until last_is "$title"
  for clicked in "$canvas_title" 'Corvanta Form Editor'; do
    xdotool mousemove --window "$(window "$clicked")" 4 50 click 1
    sleep 0.3
    wait_until last_is "$title"
  done
  keys Escape
  wait_until no_window "$title"
done
end_editor
echo "Without a display the program ends with one line"
code=0
env -u WAYLAND_DISPLAY DISPLAY=:nowhere "$programs/corvanta" 2>"$work/told" || code=$?
[ "$code $(wc -l <"$work/told")" = '1 1' ] || fail "It ended with $code: $(cat "$work/told")"
echo "The real program did all of it."
