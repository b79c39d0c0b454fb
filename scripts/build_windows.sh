#!/usr/bin/env bash
# build_windows.sh [OPTION...]: makes the program for Windows as a zip and as a setup in build-windows.
# The options are for CMake. The first run builds Qt, which takes most of its time.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need windows windows-program
. scripts/windows.sh
unset DISPLAY WAYLAND_DISPLAY
trap end_wine EXIT

scripts/windows_libraries.sh
echo "Building the tool"
configure_program -DOSTRANE_TESTS=OFF "$@"
cmake --build "$windows_build/tool"

echo "Packing"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$windows_build/tool/CMakeCache.txt")
name=ostrane-dat-tool-$version
stage=$windows_build/stage/$name
rm -rf "$windows_build/stage"
cmake --install "$windows_build/tool" --strip --prefix "$stage" >"$windows_build/install.log"
size=$(du -sm "$stage" | cut -f1)
[ "$size" -lt 40 ] || {
  echo "$stage has $size MB" >&2
  exit 1
}

# All files get the time of the release, so that the same sources give the same files.
date=$(sed -n '/^## /{s/.*, //p;q}' CHANGELOG.md)
find "$stage" -exec touch -h -d "$date 12:00 UTC" {} +
zip=$windows_build/$name-windows.zip
rm -f "$zip"
(cd "$windows_build/stage" && find "$name" -type f | LC_ALL=C sort | TZ=UTC cmake -E tar cf "$zip" --format=zip --files-from=/dev/stdin)

packaging/windows/list_files.sh "$stage" "$windows_build"
makensis -V2 -NOCD -DVERSION="$version" -DSTAGE="$stage" -DLISTS="$windows_build" -DICON="$PWD/packaging/icons/ostrane-dat-tool.ico" \
  -DOUTPUT="$windows_build/$name-windows-setup.exe" packaging/windows/setup.nsi
ls -l "$zip" "$windows_build/$name-windows-setup.exe"
