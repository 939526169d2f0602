# What the scripts need; sourced by them. Each is a package of Debian, followed, where no command has
# the same name, by what shows on any system that it is there: a command, a library that pkg-config
# knows, a file.

# Without make the linker of the optimised program works on one core, and complains of it.
BUILD_PACKAGES="g++ make cmake ninja-build:ninja pkg-config qt6-base-dev:Qt6Widgets libgl-dev:gl
  librsvg2-bin:rsvg-convert libcanberra-dev:libcanberra libasound2-dev:alsa
  libfontconfig-dev:fontconfig libpng-dev:libpng libxcb1-dev:xcb
  fonts-liberation:/usr/share/fonts/**/LiberationSans-Regular.ttf"
DISPLAY_PACKAGES="xvfb:Xvfb openbox xdotool imagemagick:import"
TEST_PACKAGES="libgtest-dev:gtest tidy binutils:readelf python3 x11-utils:xprop
  qt6-wayland:/usr/lib*/**/qt6/plugins/platforms/libqwayland*.so
  at-spi2-core:/usr/lib*/at-spi-bus-launcher dbus-daemon
  gir1.2-atspi-2.0:/usr/lib*/**/girepository-1.0/Atspi-2.0.typelib
  python3-gi:/usr/lib*/python3*/*-packages/gi"
LINT_PACKAGES="clang clang-format clang-tidy"
BENCH_PACKAGES="libbenchmark-dev:benchmark"
PACKAGE_PACKAGES="dpkg-dev:dpkg-parsechangelog desktop-file-utils:desktop-file-validate
  appstream:appstreamcli lintian"
PEER_PACKAGES="libxcb-damage0-dev:xcb-damage dbus-daemon python3 speedcrunch galculator qalculate-gtk"

# is_here PACKAGE[:SIGN]
is_here() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "${1%%:*}" 2>/dev/null)" = installed ] ||
    command -v "${1#*:}" >/dev/null || pkg-config --exists "${1#*:}" 2>/dev/null ||
    { [[ ${1#*:} == /* ]] && (shopt -s globstar && compgen -G "${1#*:}" >/dev/null); }
}

# Installs those of the named packages that are missing, and asks nothing; tells how to go on where
# that can't be done. Leaves the network alone when all are there.
need() {
  local missing=() root=() package
  for package in "$@"; do
    is_here "$package" || missing+=("${package%%:*}")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  [ "$(id -u)" = 0 ] || root=(sudo)
  command -v apt-get >/dev/null && command -v "${root[0]-true}" >/dev/null &&
    echo "Installing: ${missing[*]}" && "${root[@]}" apt-get update -qq &&
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null && return
  echo "Please install: ${missing[*]} (so called in Debian; CONTRIBUTING.md has Fedora's and Arch's" \
    "names), then run this again, or: cmake --preset release && cmake --build --preset release &&" \
    "build/release/vellarno" >&2
  exit 1
}

# Configures a preset once and builds it.
build() {
  echo "Building in build/$1: minutes the first time, a moment afterwards."
  [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null
  cmake --build --preset "$1" --target "${@:2}"
}
