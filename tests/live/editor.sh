#!/usr/bin/env bash
# The real program, used from outside: opening, saving under another name, dragging, menus, minimising.
source "$(dirname "$(readlink -f "$0")")/lib.sh"

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
end_editor
echo "The real program did all of it."
