#!/usr/bin/env bash
# Runs the tests that need a PostgreSQL or a MariaDB server, on ones of their own: on loopback, in temporary folders,
# stopped at the end. Without MariaDB and its driver its tests are skipped.
#   tests/live/database.sh [BINARY]     by default the tests with sanitizers
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
root=$(readlink -f "$here/../..")
binary=${1:-$root/build/asan/bin/rules_test}

source "$here/support/postgres.sh"
source "$here/support/mariadb.sh"
trap 'stop_postgres; stop_mariadb' EXIT
have_mariadb && start_mariadb "$here/database/maria.sql"
start_postgres "$root/samples/shop.sql" "$here/database/types.sql"

unset PGHOST PGPORT PGUSER PGPASSWORD PGCLIENTENCODING
[ -z "${mariadb_port:-}" ] || export CORVANTA_TEST_MARIADB_PORT=$mariadb_port
CORVANTA_TEST_POSTGRES_PORT=$port \
  LSAN_OPTIONS=suppressions=$root/tests/leak.supp ASAN_OPTIONS=fast_unwind_on_malloc=0 \
  "$binary" --gtest_filter='DatabaseLive.*:NamedTables.*:Databases/*'
