#!/usr/bin/env bash
# Source this file to build for Windows and to run programs under Wine.
#   configure_windows ...  configures a build for Windows
#   configure_tool ...     configures the tool in build-windows/tool; needs googletest_for_windows
#   googletest_for_windows builds GoogleTest in build-windows/installed
#   until_true COMMAND...  waits a minute for it; then calls fail, which the script has
#   has_window TITLE       tells if there is a window with this title, a regular expression

windows_build=$PWD/build-windows

# Wine gets a separate prefix and file names in UTF-8.
export WINEPREFIX=$windows_build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LC_ALL=C.UTF-8
mkdir -p "$windows_build/headers"

# The background processes of Wine would keep the output open after the tests.
end_wine() { wineserver -k || true; }

until_true() {
  for _ in $(seq 300); do
    "$@" && return
    sleep 0.2
  done
  fail "$*"
}

has_window() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
# xdotool fails with a message if a window goes while it searches.
has_no_window() { [ -z "$(xdotool search --onlyvisible --name "$1" 2>&1)" ]; }

configure_windows() {
  cmake -G Ninja --toolchain "$PWD/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release "$@"
}

googletest_for_windows() {
  configure_windows -S /usr/src/googletest -B "$windows_build/googletest" -DBUILD_GMOCK=OFF \
    -DCMAKE_INSTALL_PREFIX="$windows_build/installed" -DCMAKE_INSTALL_MESSAGE=NEVER
  cmake --build "$windows_build/googletest" --target install
}

# The headers in /usr/include are for this system, so only these two folders are linked.
configure_tool() {
  ln -sfn /usr/include/CLI "$windows_build/headers/CLI"
  ln -sfn /usr/include/nlohmann "$windows_build/headers/nlohmann"
  configure_windows -S . -B "$windows_build/tool" -DCMAKE_COMPILE_WARNING_AS_ERROR=ON \
    -DGTest_DIR="$windows_build/installed/lib/cmake/GTest" \
    -DOSTRANE_CLI11_HEADERS="$windows_build/headers" \
    -DOSTRANE_JSON_HEADERS="$windows_build/headers" "$@"
}

# The same with the windows and the pictures, which need scripts/windows_libraries.sh.
configure_program() {
  local libraries
  libraries=$(scripts/windows_libraries.sh --folder)
  # The cache keeps paths of the libraries that it was made with.
  grep -qsF "=$libraries/" "$windows_build/tool/CMakeCache.txt" ||
    rm -rf "$windows_build/tool/CMakeCache.txt" "$windows_build/tool/CMakeFiles"
  configure_tool -DOSTRANE_WINDOWS_LIBRARIES="$libraries" -DQt6_DIR="$libraries/lib/cmake/Qt6" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/"$(dpkg-architecture -qDEB_BUILD_MULTIARCH)"/cmake \
    -DZLIB_LIBRARY_RELEASE=/usr/x86_64-w64-mingw32/lib/libz.a -DOSTRANE_DESKTOP=ON "$@"
}
