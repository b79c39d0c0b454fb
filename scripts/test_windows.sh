#!/usr/bin/env bash
# test_windows.sh [BUILD]: builds the tests and the tool without its windows for Windows, in BUILD or
# else in build-windows, and runs the tests under Wine. If CI is set, what is missing is installed
# first. Where something is missing still, nothing is tested, which is told and is no failure.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
build=${1:-build-windows}
mkdir -p "$build"
build=$(cd "$build" && pwd)

packages=(g++-mingw-w64-x86-64-posix wine wine64 googletest)
[ -z "${CI:-}" ] || need_packages "${packages[@]}" || true
for package in "${packages[@]}"; do
  is_installed "$package" || {
    echo "Nothing is tested for Windows: $package is not here"
    exit 0
  }
done

# Wine gets a home of its own and no display, and keeps names in UTF-8. What it leaves running behind
# the tests would hold the output open.
unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LC_ALL=C.UTF-8
trap 'wineserver -k || true' EXIT

configure() {
  cmake -G Ninja --toolchain "$PWD/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release "$@"
}

configure -S /usr/src/googletest -B "$build/googletest" -DBUILD_GMOCK=OFF \
  -DCMAKE_INSTALL_PREFIX="$build/installed" -DCMAKE_INSTALL_MESSAGE=NEVER
cmake --build "$build/googletest" --target install

configure -S . -B "$build/tool" -DOSTRANE_DESKTOP=OFF \
  -DGTest_DIR="$build/installed/lib/cmake/GTest"
cmake --build "$build/tool"
wine "$build/tool/bin/ostrane_tests.exe" --gtest_brief=1
