#!/usr/bin/env bash
# The real program with data sources that never answer: one that accepts and stays mute, for both drivers, and a server
# that is stopped while the editor is connected to it. The page can be edited meanwhile.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"
source tests/live/support/postgres.sh
start_postgres samples/shop.sql
signal_server() { # its processes, of which one serves each connection
  local first
  first=$(head -n 1 "$postgres_folder/data/postmaster.pid")
  as_server kill -"$1" "$first" $(pgrep -P "$first") || true
}
python3 -c '
import socket
server = socket.socket()
server.bind(("127.0.0.1", 0))
server.listen(50)
print(server.getsockname()[1], flush=True)
kept = []
while True:
    kept.append(server.accept())' >"$work/mute" &
mute_pid=$!
trap 'finish; kill $mute_pid 2>/dev/null; signal_server CONT; stop_postgres' EXIT
wait_until test -s "$work/mute"
mute=$(cat "$work/mute")

export ODBCSYSINI=$work ODBCINI=$work/user.ini CORVANTA_PAUSES=100
unset PGHOST PGPORT PGUSER PGPASSWORD PGCLIENTENCODING
printf '[PostgreSQL]\nDriver=psqlodbcw.so\n[MariaDB]\nDriver=libmaodbc.so\n' >"$work/odbcinst.ini"
touch "$work/odbc.ini"
printf '[%s]\nDriver=%s\nServername=127.0.0.1\nServer=127.0.0.1\nPort=%s\nDatabase=shop\n\n' \
  mute-maria MariaDB "$mute" mute-postgres PostgreSQL "$mute" shop PostgreSQL "$port" >"$ODBCINI"
printf '\nOdbcLoginTimeout=3\nOdbcCallTimeout=3\n' >>"$work/config/corvanta/CORVANTA.INI"

toolbar() { activate 'ODBC Toolbar'; }
choose_source() { # NAME USER PASSWORD
  toolbar
  press_in_toolbar "$select"
  wait_until has_window 'Select Data Source'
  activate 'Select Data Source'
  type_text "$1"
  xdotool key Tab
  type_text "$2"
  xdotool key Tab
  type_text "$3"
  keys Return
  wait_until no_window 'Select Data Source'
}
press_in_toolbar() { # "x y" within the window
  read -r left top <<<"$(origin_of "$(window 'ODBC Toolbar')")"
  read -r x y <<<"$1"
  xdotool mousemove $((left + x)) $((top + y)) click 1
  sleep 0.2
}
label_place() { json_value "$work/menu.ods" '[(o["pleft"], o["ptop"]) for o in p["objects"] if o["kind"] == 4][0]'; }
drag_label() { # DX DY: and save, while the data source is silent
  xdotool windowactivate --sync "$(canvas_id)"
  read -r left top <<<"$(origin_of "$(canvas_id)")"
  drag $((left + label_x)) $((top + label_y)) $((left + label_x + $1)) $((top + label_y + $2))
  label_x=$((label_x + $1)) label_y=$((label_y + $2))
  activate 'Corvanta Form Editor'
  keys ctrl+s
}
label_x=60 label_y=105
select="205 51" refresh="290 51"

cp samples/menu.ods samples/*.bmp samples/*.wav "$work/"
start_editor 'Harbour Supply - Main Menu' "$work/menu.ods"
sleep 1

for source in mute-postgres mute-maria; do
  echo "$source: the page is edited while the editor waits, and the failure is told"
  before=$(label_place)
  began=$(date +%s)
  choose_source $source clerk secret
  sleep 0.4
  import -window root build/connecting.png
  drag_label 20 10
  [ "$(label_place)" != "$before" ] || fail "The drag did not go on"
  wait_until has_window Error
  [ $(($(date +%s) - began)) -le 12 ] || fail "That took $(($(date +%s) - began)) seconds"
  activate Error
  keys Return
  wait_until no_window Error
done

echo "A server that is stopped: tables are asked for again, and the page is edited meanwhile"
choose_source shop clerk "$password"
sleep 2
signal_server STOP
toolbar
press_in_toolbar "$refresh"
before=$(label_place)
drag_label 20 10
[ "$(label_place)" != "$before" ] || fail "The drag did not go on"
wait_until has_window Error
activate Error
keys Return
signal_server CONT

echo "Leaving waits for no driver"
choose_source mute-maria clerk secret
began=$(date +%s)
kill -TERM "$editor_pid"
wait "$editor_pid" || fail "The editor ended with $?"
editor_pid=
[ $(($(date +%s) - began)) -le 3 ] || fail "Leaving took $(($(date +%s) - began)) seconds"
grep paused "$work/editor.log" | sort -k2 -n | tail -n 3 || true
[ "$(grep -c 'paused [0-9]\{4,\}' "$work/editor.log")" = 0 ] || fail "The window stood still"
echo "The database window never waited."
