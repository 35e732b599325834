#!/usr/bin/env bash
# The real program with data sources that do not answer: mute servers, and a PostgreSQL server that is stopped, killed and
# started again. The canvas goes on meanwhile, and the editor ends at once.
source "$(dirname "$(readlink -f "$0")")/support/lib.sh"
source tests/live/support/postgres.sh
trap 'kill $mute_pid 2>/dev/null; kill -CONT $(server_processes) 2>/dev/null; stop_postgres; finish' EXIT
server_processes() { local first; first=$(head -n 1 "$postgres_folder/data/postmaster.pid" 2>/dev/null) && echo "$first" && pgrep -P "$first"; }

python3 tests/live/support/mute_server.py >"$work/port" &
mute_pid=$!
start_postgres samples/shop.sql
wait_until test -s "$work/port"
unset PGHOST PGPORT PGUSER PGPASSWORD PGCLIENTENCODING
mute_port=$(cat "$work/port")
export ODBCSYSINI=$work ODBCINI=$work/user.ini
printf '[PG]\nDriver=psqlodbcw.so\n[MY]\nDriver=libmaodbc.so\n[LITE]\nDriver=libsqlite3odbc.so\n' >"$work/odbcinst.ini"
: >"$work/odbc.ini"
cat >"$work/user.ini" <<INI
[a-mute]
Driver=PG
Servername=127.0.0.1
Port=$mute_port
Database=x
[b-mute]
Driver=MY
Server=127.0.0.1
Port=$mute_port
Database=x
[c-shop]
Driver=PG
Servername=127.0.0.1
Port=$port
Database=shop
Username=clerk
Password=$password
[d-large]
Driver=LITE
Database=$work/large.db
INI
python3 - "$work/large.db" <<'PYTHON'
import sqlite3, sys
with sqlite3.connect(sys.argv[1]) as db:
    for table in range(2000):
        columns = 500 if table == 0 else 3
        db.execute(f"create table t{table:04} ({', '.join(f'column{i} varchar(40)' for i in range(columns))})")
PYTHON
printf 'OdbcCallTimeout= 6\nOdbcLoginTimeout= 6\n' >>"$work/config/corvanta/CORVANTA.INI"
cp samples/*.ods samples/*.bmp samples/*.wav "$work/"

click_odbc() { # X Y in the ODBC window
  read -r odbc_left odbc_top <<<"$(origin_of "$(window 'ODBC Toolbar')")"
  xdotool mousemove $((odbc_left + $1)) $((odbc_top + $2)) sleep 0.1 click 1 sleep 0.1
}
choose() { # SOURCE
  click_odbc 205 51
  wait_until has_window 'Select Data Source'
  activate 'Select Data Source'
  type_text "$1"
  keys Return
  wait_until no_window 'Select Data Source'
}
grip_x=23 grip_y=58 # of a label, on the canvas
# An object is dragged and the page saved while something is waited for.
work_on() {
  local before
  before=$(md5sum <"$work/record.ods")
  read -r left top <<<"$(origin_of "$(canvas_id)")"
  drag $((left + grip_x)) $((top + grip_y)) $((left + grip_x + 10)) $((top + grip_y + 5))
  grip_x=$((grip_x + 10)) grip_y=$((grip_y + 5))
  xdotool windowactivate --sync "$(canvas_id)"
  keys ctrl+s
  [ "$(md5sum <"$work/record.ods")" != "$before" ] || fail "No drag while waiting for $1"
  no_window Error || fail "The wait for $1 ended too early to show anything"
}
ends_at_once() {
  local start=$SECONDS
  kill "$editor_pid"
  wait "$editor_pid" || fail "The editor ended with $?"
  editor_pid=
  [ $((SECONDS - start)) -le 2 ] || fail "The end waited for a driver"
}

no_message() { no_window Error; }
answer_error() {
  wait_until has_window Error
  activate Error
  keys Return
  wait_until no_window Error
}
lines_of_list() { # TOP: the dark pixels of the first lines of a list, as a picture of the screen tells them
  read -r odbc_left odbc_top <<<"$(origin_of "$(window 'ODBC Toolbar')")"
  import -window root -crop 200x70+$((odbc_left + 28))+$((odbc_top + $1)) "$work/list.png"
  convert "$work/list.png" -colorspace gray -threshold 50% -format '%[fx:round((1-mean)*w*h)]' info:
}
tables_shown() { [ "$(lines_of_list 168)" -gt 100 ]; }
columns_shown() { [ "$(lines_of_list 308)" -gt 100 ]; }
no_columns() { ! columns_shown; }

# A tool gives up, too, while the editor is tested.
"$programs/odspage" dump samples/record.ods | sed 's/"dbconnect": "[^"]*"/"dbconnect": "a-mute\\tme\\tsecret\\tCustomers"/' >"$work/mute.json"
"$programs/odspage" build "$work/mute.json" "$work/mute.ods"
timeout 60 "$programs/odspage" check --database --rule database "$work/mute.ods" >"$work/check.out" 2>"$work/check.err" &
check_pid=$!

export CORVANTA_PAUSES=50
start_editor Product "$work/record.ods"
for source in a-mute b-mute; do
  echo "$source: log-in is given up, and the canvas works meanwhile"
  choose $source
  work_on $source
  answer_error
  choose $source
  click_odbc 205 51
  sleep 1
  has_window 'Select Data Source' || fail "The choice of a source waits for a driver"
  keys Escape
  wait_until no_window 'Select Data Source'
  click_odbc 290 83 # Cancel
  sleep 7
  no_message || fail "A cancelled log-in told something"
done

code=0
wait $check_pid || code=$?
[ $code = 1 ] && grep -q 'no answer of data source "a-mute"' "$work/check.err" && ! grep -q secret "$work/check.err" ||
  fail "The check of a mute source: $code $(cat "$work/check.err")"

echo "A stopped server: the listing is given up, and the next click connects again"
choose c-shop
wait_until tables_shown
click_odbc 123 175
wait_until columns_shown
processes=$(server_processes)
kill -STOP $processes
click_odbc 123 192
work_on 'a stopped server'
no_columns || fail "A stopped server told columns"
answer_error
kill -CONT $processes
click_odbc 123 175
wait_until columns_shown

echo "A killed connection is told, and made again"
kill "$(pgrep -P "$(server_processes | head -n 1)" -f 'postgres: clerk shop' | head -n 1)"
click_odbc 123 192
answer_error
click_odbc 123 192
wait_until columns_shown
click_odbc 290 51 # Refresh
sleep 0.5
columns_shown || fail "Refresh lost the columns"

echo "2,000 tables, 500 columns, and no pause of the windows above 50 milliseconds"
choose d-large
wait_until tables_shown
click_odbc 123 145 # the filter
type_text t0
click_odbc 123 175
wait_until columns_shown
for _ in 1 2 3; do keys Down Down Down Up; done
xdotool key --delay 20 Page_Down Page_Down End Home

click_odbc 123 145
keys ctrl+a Delete
if grep paused "$work/editor.log"; then fail "The windows stood still"; fi

echo "The end waits for no driver"
choose c-shop
wait_until tables_shown
kill -STOP $(server_processes)
click_odbc 123 175
sleep 0.3
ends_at_once
kill -CONT $(server_processes)
start_editor Product "$work/record.ods"
choose a-mute
sleep 0.3
ends_at_once
echo "Nothing waited for a server."
