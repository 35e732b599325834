#!/usr/bin/env bash
# What an author does is never lost: undo, crashes, signals, other programs, other directories. With a number: so many kills.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"
kills=${1:-6}
title='Harbour Supply - Main Menu'
page=$work/pages/menu.ods
mkdir -p "$work/pages" "$work/other"
fresh_page() { cp samples/menu.ods samples/*.bmp samples/*.wav "$work/pages/"; }
focus_canvas() { xdotool windowactivate --sync "$(canvas_id)"; sleep 0.2; }
click_at() { # page point
  read -r left top <<<"$(origin_of "$(canvas_id)")"
  xdotool mousemove $((left + $1)) $((top + $2)) click 1
  sleep 0.2
}
save() { activate 'Corvanta Form Editor'; keys alt+f s; }
objects() { json_value "$1" 'len(p["objects"])'; }
recovery_file() { find "$work/state" -name '*.page' 2>/dev/null | grep -q .; }
no_recovery_file() { ! recovery_file; }

echo "Delete, Ctrl+Z, save: the same bytes"
fresh_page
start_editor "$title" "$page"
click_at 60 150
keys Delete
keys ctrl+z
save
cmp samples/menu.ods "$page" || fail "Undo did not bring the page back"

echo "A killed editor's changes are offered and come back"
focus_canvas
click_at 60 150
keys Delete
wait_until recovery_file
kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
cmp samples/menu.ods "$page" || fail "The kill changed the file"
start_editor "$title" "$page"
wait_until has_window 'Corvanta Form Editor'
sleep 0.5
keys alt+r
sleep 0.5
save
[ "$(objects "$page")" = $(($(objects samples/menu.ods) - 1)) ] || fail "The recovered page is another one"
wait_until no_recovery_file

echo "SIGTERM stores the settings and keeps the changes for the next start"
focus_canvas
click_at 60 190
keys Delete
rm -f "$work/config/corvanta/CORVANTA.INI"
kill -TERM "$editor_pid"
wait "$editor_pid" || fail "SIGTERM did not end the editor in order"
editor_pid=
grep -q MainTop "$work/config/corvanta/CORVANTA.INI" || fail "The settings were not stored"
recovery_file || fail "The changes were not kept"
start_editor "$title" "$page"
sleep 0.5
keys alt+d
wait_until no_recovery_file

echo "Another program's change is not overwritten without a question"
focus_canvas
click_at 60 190
keys Delete
cp samples/query.ods "$page"
activate 'Corvanta Form Editor'
wait_until has_window 'Reading File'
keys alt+k
keys ctrl+s
wait_until has_window 'Saving File'
keys Escape
cmp samples/query.ods "$page" || fail "The other program's file was overwritten"
kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
rm -rf "$work/state"

echo "A page is not saved into another directory without a question"
fresh_page
start_editor "$title" "$page"
click_at 60 190
keys Delete
activate 'Corvanta Form Editor'
keys alt+o o # Load: its file dialog makes a directory current
wait_until has_window 'Open'
xdotool key ctrl+a
type_text "$PWD/samples/objects/ticker.hdo"
keys Return
sleep 0.5
activate 'Corvanta Form Editor'
keys ctrl+s
wait_until has_window 'Saving File'
keys alt+o
sleep 0.5
[ "$(objects "$page")" = "$(objects samples/menu.ods)" ] || fail "The page was not saved where it was opened"
[ ! -e samples/objects/menu.ods ] || fail "The page was saved into the other directory"
kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
rm -rf "$work/state"

echo "A file that was cut in half keeps its bytes beside the saved one"
fresh_page
head -c 700 samples/menu.ods >"$page"
start_editor "$title" "$page"
click_at 60 90
keys Delete
save
sleep 0.5
cmp <(head -c 700 samples/menu.ods) "$page.bak" || fail "The old bytes are not kept"
kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
rm -rf "$work/state"

echo "A limit of the size of files ends in a message, in the tools and in the editor"
fresh_page
"$programs/odspage" dump "$page" >"$work/menu.json"
limited() { # PROGRAM ARGUMENT...: writes under the limit of one kilobyte
  local said
  said=$(ulimit -f 1 && "$@" 2>&1 >/dev/null) && fail "$1 wrote beyond the limit"
  [ -n "$said" ] || fail "$1 said nothing: a signal ended it"
}
limited "$programs/odspage" build "$work/menu.json" "$work/limited.ods"
limited "$programs/odspage" html "$page"
limited "$programs/ods2hts" "$page" "$work/limited.hts"
limited env QT_QPA_PLATFORM=offscreen "$programs/odsrender" "$page" "$work/limited.png"
[ -z "$(find "$work" -name 'limited*' -size +0)" ] || fail "A tool left half a file"
(ulimit -f 1 && exec "$programs/corvanta" "$page") 2>>"$work/editor.log" &
editor_pid=$!
wait_until has_window "$title"
click_at 60 150
keys ctrl+d
save
wait_until has_window 'Saving File'
keys Return
cmp samples/menu.ods "$page" || fail "The refused save changed the file"
kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
rm -rf "$work/state"

echo "$kills kills at random moments lose nothing older than a second"
duplicate_and_save() { # FILE: what the page is after one more duplicate
  focus_canvas
  keys ctrl+d
  save
  cp "$page" "$1"
}
fresh_page
start_editor "$title" "$page"
click_at 60 150
duplicate_and_save "$work/once.ods"
duplicate_and_save "$work/twice.ods"
end_editor
recovered=0
for ((i = 0; i < kills; ++i)); do
  fresh_page
  start_editor "$title" "$page"
  click_at 60 150
  keys ctrl+d
  edited=$(date +%s%N)
  sleep "0.$((RANDOM % 90 + 10))"
  xdotool key --clearmodifiers ctrl+d
  sleep "0.$((RANDOM % 90 + 10))"
  kill -9 "$editor_pid"; wait "$editor_pid" 2>/dev/null || true
  age=$((($(date +%s%N) - edited) / 1000000))
  cmp samples/menu.ods "$page" || fail "A kill changed the file"
  [ $age -lt 1000 ] || recovery_file || fail "An edit $age ms before the kill is lost"
  if recovery_file; then
    recovered=$((recovered + 1))
    start_editor "$title" "$page"
    sleep 0.4
    keys alt+r
    sleep 0.4
    keys ctrl+s
    cmp -s "$work/once.ods" "$page" || cmp -s "$work/twice.ods" "$page" || fail "The recovered page was never in the editor"
    end_editor
  fi
  rm -rf "$work/state"
done
echo "Nothing was lost; $recovered pages came back byte for byte."
