#!/usr/bin/env bash
# Builds the tests and the tool without the desktop for Windows in build-windows, and runs the tests
# under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need windows
build=$PWD/build-windows
mkdir -p "$build"

# Wine gets a separate prefix, no display, and file names in UTF-8. Its background processes would keep
# the output open after the tests.
unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LC_ALL=C.UTF-8
trap 'wineserver -k || true' EXIT

configure() {
  cmake -G Ninja --toolchain "$PWD/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release "$@"
}

configure -S /usr/src/googletest -B "$build/googletest" -DBUILD_GMOCK=OFF \
  -DCMAKE_INSTALL_PREFIX="$build/installed" -DCMAKE_INSTALL_MESSAGE=NEVER
cmake --build "$build/googletest" --target install

# The headers in /usr/include are for this system, so only these two folders are linked.
mkdir -p "$build/headers"
ln -sfn /usr/include/CLI "$build/headers/CLI"
ln -sfn /usr/include/nlohmann "$build/headers/nlohmann"

configure -S . -B "$build/tool" -DOSTRANE_DESKTOP=OFF -DCMAKE_COMPILE_WARNING_AS_ERROR=ON \
  -DGTest_DIR="$build/installed/lib/cmake/GTest" -DOSTRANE_CLI11_HEADERS="$build/headers" \
  -DOSTRANE_JSON_HEADERS="$build/headers"
cmake --build "$build/tool"
wine "$build/tool/bin/ostrane_tests.exe" --gtest_brief=1
wine "$build/tool/bin/ostrane_command_tests.exe" --gtest_brief=1
