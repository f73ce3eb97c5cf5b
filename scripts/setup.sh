#!/usr/bin/env bash
# Installs the Debian packages the game needs (when some are missing), then configures and
# builds it in build/. Sourced by ./play and ./test.
set -euo pipefail
ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

PACKAGES=(
  cmake g++ make pkg-config libgtest-dev libbenchmark-dev
  qt6-base-dev qt6-multimedia-dev qt6-svg-dev libgl-dev
  gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-plugins-ugly gstreamer1.0-libav
  fonts-dejavu-core fonts-liberation
  clang libclang-rt-14-dev
)

missing=()
for p in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -q
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

BUILD="${POKERZEVA_BUILD_DIR:-$ROOT/build}"
if [ ! -f "$BUILD/CMakeCache.txt" ]; then
  cmake -S "$ROOT" -B "$BUILD" -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
fi
cmake --build "$BUILD" -j"$(nproc)"
