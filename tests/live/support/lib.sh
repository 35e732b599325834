# What the tests of the real program share: a virtual screen, the editor on it, and hands on mouse and keyboard.
# Sourced by the scripts above it, which run from the project's root.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../../.."
source scripts/virtual-screen

programs=$PWD/build/release/bin
work=$(mktemp -d)
export XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state XDG_DATA_HOME=$work/data
# Without the mock toolbar the page begins at the top left of the canvas window.
mkdir -p "$work/config/corvanta"
printf '[Corvanta Page Editor]\nShowToolbar= 0\n' >"$work/config/corvanta/CORVANTA.INI"
editor_pid=

finish() {
  local code=$?
  if [ $code -ne 0 ]; then
    mkdir -p build/failures
    import -window root "build/failures/$(basename "$0" .sh).png" 2>/dev/null || true
    echo "FAILED; the screen is in build/failures/$(basename "$0" .sh).png" >&2
  fi
  [ -z "$editor_pid" ] || kill "$editor_pid" 2>/dev/null || true
  stop_virtual_screen
  rm -rf "$work"
}
trap finish EXIT
start_virtual_screen 1280x1000

fail() { echo "$*" >&2; exit 1; }

# Waits until a command succeeds, at most ten seconds.
wait_until() {
  local tries=0
  until "$@" >/dev/null 2>&1; do
    sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 200 ] || fail "Waited in vain for: $*"
  done
}

# The window id of a visible window with an exact title.
window() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1; }
has_window() { [ -n "$(window "$1")" ]; }
no_window() { [ -z "$(window "$1")" ]; }

# start_editor TITLE FILE: opens a page whose caption is the title.
start_editor() {
  canvas_title=$1
  shift
  "$programs/corvanta" "$@" 2>>"$work/editor.log" &
  editor_pid=$!
  wait_until has_window 'Corvanta Form Editor'
  wait_until canvas_found
  sleep 0.4
}
end_editor() {
  kill "$editor_pid" 2>/dev/null || true
  wait "$editor_pid" 2>/dev/null || true
  editor_pid=
}

activate() {
  xdotool windowactivate --sync "$(window "$1")"
  sleep 0.2
}
keys() {
  xdotool key --delay 60 "$@"
  sleep 0.3
}
type_text() {
  xdotool type --delay 8 -- "$1"
  sleep 0.2
}

# The canvas window has the page's caption; canvas_title names it.
canvas_title=Page
canvas_id() { window "$canvas_title"; }
canvas_found() { has_window "$canvas_title"; }

# Whether a menu hangs open.
menu_open() {
  local id
  for id in $(xdotool search --onlyvisible --class corvanta); do
    xprop -id "$id" _NET_WM_WINDOW_TYPE 2>/dev/null | grep -q 'MENU' && return 0
  done
  return 1
}
no_menu() { ! menu_open; }

# The screen position of a widget's window.
origin_of() { xwininfo -id "$1" | awk '/Absolute upper-left X/ {x=$NF} /Absolute upper-left Y/ {y=$NF} END {print x, y}'; }

# Drags the mouse from a screen point to another, in small steps as a hand does.
drag() {
  local x1=$1 y1=$2 x2=$3 y2=$4 i
  xdotool mousemove "$x1" "$y1" sleep 0.1 mousedown 1 sleep 0.05
  for i in 1 2 3 4 5; do
    xdotool mousemove $((x1 + i * 6 * (x2 >= x1 ? 1 : -1))) $((y1 + i)) sleep 0.03
  done
  for i in $(seq 1 12); do
    xdotool mousemove $((x1 + (x2 - x1) * i / 12)) $((y1 + (y2 - y1) * i / 12)) sleep 0.03
  done
  xdotool mousemove "$((x2 + 1))" "$y2" sleep 0.05 mousemove "$x2" "$y2" sleep 0.15 mouseup 1
  sleep 0.4
}

# A value of a page's JSON: json_value FILE EXPRESSION, the page being p.
json_value() { "$programs/odspage" dump "$1" 2>/dev/null | python3 -c "import json,sys; p=json.load(sys.stdin); print($2)"; }
