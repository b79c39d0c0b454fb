#!/usr/bin/env bash
# Installs what is missing, builds the tool, puts a sample archive into ~/ostrane-sample and starts
# the tool. Without a display it starts on a virtual one and ends with a screenshot.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

shown=yes
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || shown=no

need_packages "${build_packages[@]}"
[ $shown = yes ] || need_packages "${virtual_display_packages[@]}"

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRANE_TESTS=OFF
cmake --build build

scripts/put_sample.sh build/sample ~/ostrane-sample

if [ $shown = yes ]; then
  exec build/bin/ostrane-dat-tool
fi
scripts/on_virtual_display.sh scripts/take_screenshot.sh build/bin/ostrane-dat-tool \
  "$PWD/build/screenshot.png"
