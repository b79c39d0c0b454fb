#!/usr/bin/env bash
# Builds the tests and the tool for Windows in build-windows, and runs the tests under Wine. The windows
# and the pictures are built and tested only if scripts/build_windows.sh has built Qt before.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need windows
. scripts/windows.sh
unset DISPLAY WAYLAND_DISPLAY
trap end_wine EXIT
bin=$windows_build/tool/bin

googletest_for_windows
if [ ! -d "$(scripts/windows_libraries.sh --folder)" ]; then
  configure_tool -DOSTRANE_DESKTOP=OFF
  cmake --build "$windows_build/tool"
  wine "$bin/ostrane_tests.exe" --gtest_brief=1
  wine "$bin/ostrane_command_tests.exe" --gtest_brief=1
  exit
fi

need windows-tour
scripts/build_windows.sh -DOSTRANE_TESTS=ON
wine "$bin/ostrane_tests.exe" --gtest_brief=1
OSTRANE_PAIRS=100 wine "$bin/ostrane_command_tests.exe" --gtest_brief=1
# Wine passes on variables of Qt only with this prefix.
WINEQT_QPA_PLATFORM=offscreen WINEQT_QPA_FONTDIR=$PWD/tests/desktop/font \
  wine "$bin/ostrane_desktop_tests.exe" --gtest_brief=1

# The zip is unpacked into a folder with an umlaut and blanks.
name=$(basename "$windows_build"/*-windows.zip -windows.zip)
unpacked="$WINEPREFIX/drive_c/Für mich allein"
rm -rf "$unpacked"
mkdir -p "$unpacked"
(cd "$unpacked" && cmake -E tar xf "$windows_build/$name-windows.zip")
for scale in 1 2; do
  end_wine  # so that it reads the scale anew
  scripts/on_virtual_display.sh scripts/tour_windows.sh "$unpacked/$name" \
    "$windows_build/tour-$scale" $scale
done
scripts/on_virtual_display.sh scripts/check_windows_setup.sh \
  "$windows_build/$name-windows-setup.exe" "$windows_build/stage/$name"
