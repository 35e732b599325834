# The Debian packages that the project needs, and their installation. Sourced by ./run and ./test.

BUILD_PACKAGES=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-documentation-tools libqt6sql6-sqlite
  libgl-dev libglib2.0-dev libsdl2-mixer-dev unixodbc-dev
  nlohmann-json3-dev libcli11-dev libcpp-httplib-dev libtomlplusplus-dev libgtest-dev libbenchmark-dev
  python3
)
# Needed by the running editor; the second line serves machines without a display.
RUN_PACKAGES=(
  qt6-qpa-plugins fonts-liberation fonts-dejavu-core timgm6mb-soundfont libsqliteodbc sqlite3
  xvfb openbox imagemagick x11vnc x11-utils
)
TEST_PACKAGES=(
  clang-format git
)
FUZZ_PACKAGES=(
  clang libclang-rt-14-dev
)
# Left out by ./test --quick: servers, browsers, the virtual screen's tools.
FULL_TEST_PACKAGES=(
  xvfb openbox xdotool xclip imagemagick x11-utils libsqliteodbc odbc-postgresql postgresql sqlite3
  odbc-mariadb mariadb-server-core mariadb-client-core
  fonts-liberation fonts-dejavu-core chromium pulseaudio pulseaudio-utils
  dpkg-dev lintian desktop-file-utils appstream shared-mime-info libglib2.0-bin xdg-utils file man-db
)
command -v node >/dev/null || FULL_TEST_PACKAGES+=(nodejs npm)
command -v java >/dev/null || FULL_TEST_PACKAGES+=(default-jre-headless)

# Installs those of the named packages that are missing.
install_packages() {
  local missing=()
  local name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local as_root=()
  [ "$(id -u)" = 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# Configures and builds a preset.
build_preset() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" "$@"
}
