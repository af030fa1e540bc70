#!/bin/sh
# Installs the Debian packages that the build needs and that are not there yet; with "format" also the formatter.
set -eu
needed="g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 qt6-qpa-plugins zlib1g-dev
 qt6-tools-dev qt6-tools-dev-tools libqt6opengl6-dev libgtest-dev breeze-icon-theme fonts-dejavu-core
 libgl1-mesa-dev libxkbcommon-dev libpixman-1-dev pkg-config libxdo-dev libx11-dev xvfb"
case "${PRESET:-}" in asan) needed="$needed clang libclang-rt-14-dev" ;; esac
case "${1:-}" in format) needed="$needed clang-format" ;; esac

missing=""
for package in $needed; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if ! command -v apt-get >/dev/null 2>&1; then
  echo "These Debian packages are missing and apt-get is not there to install them:$missing" >&2
  exit 1
fi
run=""
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null 2>&1 || { echo "Please install as root:$missing" >&2; exit 1; }
  run=sudo
fi
echo "Installing:$missing"
$run apt-get update -qq
$run env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
