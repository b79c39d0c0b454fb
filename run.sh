#!/usr/bin/env bash
# Installs missing packages, builds the tool, copies a sample archive to ~/ostrane-sample and starts
# the tool. Without a display it starts the tool on a virtual one, takes a screenshot and exits.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

purposes=(build)
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  purposes+=(display)
elif [ -z "${DISPLAY:-}" ]; then
  purposes+=(wayland)
fi
need "${purposes[@]}"

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRANE_TESTS=OFF
cmake --build build

scripts/put_sample.sh build/sample ~/ostrane-sample

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/ostrane-dat-tool
fi
scripts/on_virtual_display.sh scripts/take_screenshot.sh build/bin/ostrane-dat-tool \
  "$PWD/build/screenshot.png"
