#!/usr/bin/env bash
# Runs the tests that need a PostgreSQL server, on one of their own: on loopback, in a temporary folder, stopped at
# the end.
#   tests/live/database.sh [BINARY]     by default the tests with sanitizers
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
root=$(readlink -f "$here/../..")
binary=${1:-$root/build/asan/bin/rules_test}

folder=$(mktemp -d)
data=$folder/data
programs=$(pg_config --bindir)
as_server() { (cd "$folder" && "$@"); }
if [ "$(id -u)" = 0 ]; then # the server refuses to be root
  chown postgres "$folder"
  as_server() { (cd "$folder" && runuser -u postgres -- "$@"); }
fi

stop_server() {
  if [ -s "$data/postmaster.pid" ]; then
    as_server "$programs/pg_ctl" -D "$data" -m fast -w stop >/dev/null || kill "$(head -n 1 "$data/postmaster.pid")"
  fi
  rm -rf "$folder"
}
trap stop_server EXIT

password='s;cr}t=ä {'
printf '%s\n' "$password" >"$folder/password"
chmod 644 "$folder/password"
as_server "$programs/initdb" -D "$data" -U clerk -A scram-sha-256 --pwfile="$folder/password" \
  --encoding=UTF8 --locale=C.UTF-8 >/dev/null

# A port that was free a moment ago may be taken by now: try another then.
started=
for _ in 1 2 3 4 5; do
  port=$((20000 + RANDOM % 20000))
  if as_server "$programs/pg_ctl" -D "$data" -w -l "$folder/log" \
    -o "-p $port -c listen_addresses=127.0.0.1 -c unix_socket_directories= -c fsync=off" start >/dev/null; then
    started=1
    break
  fi
done
[ -n "$started" ] || { cat "$folder/log" >&2; exit 1; }

export PGHOST=127.0.0.1 PGPORT=$port PGUSER=clerk PGPASSWORD=$password PGCLIENTENCODING=UTF8
psql -q -v ON_ERROR_STOP=1 -c 'CREATE DATABASE shop' postgres
psql -q -v ON_ERROR_STOP=1 -f "$root/samples/shop.sql" -f "$here/database/types.sql" shop

unset PGHOST PGPORT PGUSER PGPASSWORD PGCLIENTENCODING
CORVANTA_TEST_POSTGRES_PORT=$port \
  LSAN_OPTIONS=suppressions=$root/tests/leak.supp ASAN_OPTIONS=fast_unwind_on_malloc=0 \
  "$binary" --gtest_filter='DatabaseLive.*:Databases/*'
