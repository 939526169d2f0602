# Debian packages that the scripts need; sourced by them.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qt6-base-dev libgl-dev librsvg2-bin libcanberra-dev libasound2-dev
  libfontconfig-dev libxcb1-dev fonts-liberation"
DISPLAY_PACKAGES="xvfb openbox xdotool imagemagick"
TEST_PACKAGES="libgtest-dev tidy binutils python3 x11-utils qt6-wayland
  at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi"
BENCH_PACKAGES="libbenchmark-dev"
PACKAGE_PACKAGES="dpkg-dev desktop-file-utils appstream lintian"
PEER_PACKAGES="libxcb-damage0-dev dbus-daemon python3 speedcrunch galculator qalculate-gtk"

# Installs those of the named packages that are missing, and asks nothing. Leaves the network alone
# when all are there.
need() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local root=()
  [ "$(id -u)" = 0 ] || root=(sudo)
  echo "Installing: ${missing[*]}"
  "${root[@]}" apt-get update -qq &&
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures a preset once and builds it.
build() {
  [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
  cmake --build --preset "$1" --target "${@:2}" -- --quiet
}
