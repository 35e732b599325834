# A MariaDB server of the tests' own: on loopback, in a temporary folder, stopped by stop_mariadb. Sourced. Afterwards
# mariadb_port is its port, and clerk's password is "secret".

mariadb_folder=$(mktemp -d)
mariadb_pid=

have_mariadb() {
  command -v mariadbd >/dev/null && command -v mariadb >/dev/null && command -v mariadb-install-db >/dev/null &&
    compgen -G '/usr/lib/*/odbc/libmaodbc.so' >/dev/null
}

stop_mariadb() {
  if [ -n "$mariadb_pid" ]; then
    kill "$mariadb_pid" 2>/dev/null && wait "$mariadb_pid" || true
  fi
  rm -rf "$mariadb_folder"
}

# start_mariadb SCRIPT...: with the databases of the scripts.
start_mariadb() {
  local me _ script
  me=$(id -un)
  mariadb-install-db --no-defaults --user="$me" --datadir="$mariadb_folder/data" --skip-test-db \
    --auth-root-authentication-method=normal >"$mariadb_folder/log" 2>&1 || { cat "$mariadb_folder/log" >&2; exit 1; }
  mariadb_port=$((40000 + RANDOM % 20000))
  mariadbd --no-defaults --user="$me" --datadir="$mariadb_folder/data" --socket="$mariadb_folder/socket" \
    --port="$mariadb_port" --bind-address=127.0.0.1 --pid-file="$mariadb_folder/pid" >"$mariadb_folder/log" 2>&1 &
  mariadb_pid=$!
  for _ in $(seq 150); do
    mariadb --no-defaults -S "$mariadb_folder/socket" -e 'select 1' >/dev/null 2>&1 && break
    sleep 0.2
  done
  for script in "$@"; do
    mariadb --no-defaults -S "$mariadb_folder/socket" --default-character-set=utf8mb4 <"$script"
  done
}
