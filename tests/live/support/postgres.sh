# A PostgreSQL server of the tests' own with the sample database "shop": on loopback, in a temporary folder, stopped by
# stop_postgres. Sourced. Afterwards port is its port, password that of the user clerk, and psql reaches it.

postgres_folder=$(mktemp -d)
postgres_programs=$(pg_config --bindir)
password='s;cr}t=ä {'

as_server() { (cd "$postgres_folder" && "$@"); }
if [ "$(id -u)" = 0 ]; then # the server refuses to be root
  chown postgres "$postgres_folder"
  as_server() { (cd "$postgres_folder" && runuser -u postgres -- "$@"); }
fi

stop_postgres() {
  local data=$postgres_folder/data
  if [ -s "$data/postmaster.pid" ]; then
    as_server "$postgres_programs/pg_ctl" -D "$data" -m fast -w stop >/dev/null || kill "$(head -n 1 "$data/postmaster.pid")"
  fi
  rm -rf "$postgres_folder"
}

# start_postgres SCRIPT...: with the tables of the scripts.
start_postgres() {
  local data=$postgres_folder/data started='' _
  printf '%s\n' "$password" >"$postgres_folder/password"
  chmod 644 "$postgres_folder/password"
  as_server "$postgres_programs/initdb" -D "$data" -U clerk -A scram-sha-256 --pwfile="$postgres_folder/password" \
    --encoding=UTF8 --locale=C.UTF-8 >/dev/null
  # A port that was free a moment ago may be taken by now: try another then.
  for _ in 1 2 3 4 5; do
    port=$((20000 + RANDOM % 20000))
    if as_server "$postgres_programs/pg_ctl" -D "$data" -w -l "$postgres_folder/log" \
      -o "-p $port -c listen_addresses=127.0.0.1 -c unix_socket_directories= -c fsync=off" start >/dev/null; then
      started=1
      break
    fi
  done
  [ -n "$started" ] || { cat "$postgres_folder/log" >&2; exit 1; }
  export PGHOST=127.0.0.1 PGPORT=$port PGUSER=clerk PGPASSWORD=$password PGCLIENTENCODING=UTF8
  psql -q -v ON_ERROR_STOP=1 -c 'CREATE DATABASE shop' postgres
  local script
  for script in "$@"; do
    psql -q -v ON_ERROR_STOP=1 -f "$script" shop
  done
}
