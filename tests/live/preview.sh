#!/usr/bin/env bash
# The sample pages as an application, walked through in headless Chromium on the preview: on SQLite and on a PostgreSQL
# server of its own. What was changed in the browser is looked for in the databases.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
programs=$PWD/build/release/bin
work=$(mktemp -d)
preview_pid=
source tests/live/support/postgres.sh
finish() {
  [ -z "$preview_pid" ] || kill "$preview_pid" 2>/dev/null || true
  stop_postgres
  rm -rf "$work"
}
trap finish EXIT
source tests/live/support/node_tools.sh
start_postgres samples/shop.sql
sqlite3 -bail "$work/shop.db" <samples/shop.sql

export ODBCSYSINI=$work ODBCINI=$work/user.ini
printf '[SQLite3]\nDriver=libsqlite3odbc.so\n[PostgreSQL]\nDriver=psqlodbcw.so\n' >"$work/odbcinst.ini"
touch "$work/odbc.ini"

# use_database SECTION USER PASSWORD: the samples on a database, in $work/pages.
use_database() {
  printf '[Corvanta Samples]\n%s\n' "$1" >"$ODBCINI"
  rm -rf "$work/pages"
  cp -r samples "$work/pages"
  local page
  for page in "$work/pages/"*.ods; do
    "$programs/odspage" dump "$page" | python3 -c '
import json, sys
page = json.load(sys.stdin)
parts = page["dbconnect"].split("\t")
if len(parts) > 3:
    page["dbconnect"] = "\t".join([parts[0], sys.argv[1], sys.argv[2], parts[3]])
json.dump(page, sys.stdout)' "$2" "$3" >"$work/page.json"
    "$programs/odspage" build "$work/page.json" "$page"
  done
}

# start_preview OPTION...: afterwards address is what it told.
start_preview() {
  rm -f "$work/address"
  "$programs/odspage" preview "$work/pages" "$@" </dev/null >"$work/address" 2>"$work/errors" &
  preview_pid=$!
  local tries=0
  until [ -s "$work/address" ]; do
    sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 200 ] || { cat "$work/errors" >&2; exit 1; }
  done
  address=$(head -n 1 "$work/address")
}
stop_preview() {
  kill "$preview_pid"
  wait "$preview_pid" || { echo "The preview ended with $?" >&2; exit 1; }
  preview_pid=
}

# expect WHAT GOT WANTED
expect() { [ "$2" = "$3" ] || { echo "$1: \"$2\" instead of \"$3\"" >&2; exit 1; }; }

# walk NAME QUERY-COMMAND...: reading only, then writing; the command prints what a statement gives.
walk() {
  local name=$1 count='Select Count(*) From Customers' rest="Select Count(*), Sum(Number) From Customers Where Number <> 12"
  shift
  local before
  before=$("$@" "$rest")
  start_preview
  (cd "$tools" && node walk.mjs "$address" reading "$work/pages" "$programs")
  stop_preview
  expect "$name, reading: rows" "$("$@" "$count")" 14
  expect "$name, reading: credit limit" "$("$@" 'Select Cast(CreditLimit As Integer) From Customers Where Number = 12')" 1800
  start_preview --write
  (cd "$tools" && node walk.mjs "$address" writing "$work/pages" "$programs")
  stop_preview
  expect "$name: credit limit" "$("$@" 'Select Cast(CreditLimit * 100 As Integer) From Customers Where Number = 12')" 190050
  expect "$name: the rest of the record" \
    "$("$@" "Select Count(*) From Customers Where Number = 12 And Name = 'Loft & Locker' And City = 'Hull' And Notes Is Null And \"Customer Since\" = '1989-11-13'")" 1
  expect "$name: the other records" "$("$@" "$rest")" "$before"
  echo "$name: walked through"
}

use_database "$(printf 'Driver=SQLite3\nDatabase=%s' "$work/shop.db")" '' ''
walk SQLite sqlite3 "$work/shop.db"
use_database "$(printf 'Driver=PostgreSQL\nServername=127.0.0.1\nPort=%s\nDatabase=shop' "$port")" clerk "$password"
walk PostgreSQL psql -A -t -q shop -c

echo "The password is asked for on the terminal, unseen, where the stored one is wrong, and Ctrl+C leaves the terminal as it was"
use_database "$(printf 'Driver=PostgreSQL\nServername=127.0.0.1\nPort=%s\nDatabase=shop' "$port")" clerk 'not it'
env -u PGUSER -u PGPASSWORD python3 tests/live/preview/terminal.py "$programs/odspage" "$work/pages" clerk "$password"
