#!/usr/bin/env bash
# Runs the tests that need a PostgreSQL server, on one of their own: on loopback, in a temporary folder, stopped at
# the end.
#   tests/live/database.sh [BINARY]     by default the tests with sanitizers
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
root=$(readlink -f "$here/../..")
binary=${1:-$root/build/asan/bin/rules_test}

source "$here/support/postgres.sh"
trap stop_postgres EXIT
start_postgres "$root/samples/shop.sql" "$here/database/types.sql"

unset PGHOST PGPORT PGUSER PGPASSWORD PGCLIENTENCODING
CORVANTA_TEST_POSTGRES_PORT=$port \
  LSAN_OPTIONS=suppressions=$root/tests/leak.supp ASAN_OPTIONS=fast_unwind_on_malloc=0 \
  "$binary" --gtest_filter='DatabaseLive.*:Databases/*'
