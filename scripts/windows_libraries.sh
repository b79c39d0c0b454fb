#!/usr/bin/env bash
# Builds Qt, libpng and giflib for Windows from Debian's sources, once, in a folder of the user's cache.
# windows_libraries.sh --folder only prints that folder. It exists only if it is complete.
set -euo pipefail
cd "$(dirname "$0")/.."
toolchain=$PWD/cmake/mingw.cmake
. scripts/packages.sh

# What is off needs other libraries or is not used. Debian's source of Qt lacks a header for tablets.
options=(-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
  -DINPUT_opengl=no)
for feature in calendarwidget colordialog columnview concurrent datawidgetmapper dbus dial direct2d directwrite \
  fontdialog glib graphicsview icu inputdialog keysequenceedit lcdnumber mdiarea network pdf \
  printsupport progressdialog splashscreen sql style_windowsvista syntaxhighlighter systemtrayicon tabletevent \
  textmarkdownreader textmarkdownwriter textodfwriter toolbox undocommand undogroup undostack undoview \
  vulkan wizard xml system_doubleconversion system_freetype system_harfbuzz system_jpeg system_pcre2 \
  system_png system_zlib; do
  options+=("-DFEATURE_$feature=OFF")
done

installed_version() { dpkg-query -W -f "\${source:Version}" "$1" 2>/dev/null || echo none; }
qt_version=$(installed_version qt6-base-dev)
recipe="${options[*]} $qt_version $(installed_version g++-mingw-w64-x86-64-posix)"
folder=${XDG_CACHE_HOME:-$HOME/.cache}/ostrane-dat-tool/windows-qt-${qt_version%%+*}
folder+=-$(sha256sum <<<"$recipe" | cut -c1-12)
case "${1:-}" in
  --folder)
    echo "$folder"
    exit
    ;;
esac
[ ! -d "$folder" ] || exit 0

need windows windows-program
work=$folder.work
mkdir -p "$work"
exec 9>"$folder.lock"
flock 9
[ ! -d "$folder" ] || exit 0
start=$SECONDS
say() { echo "$((SECONDS - start)) s: $*"; }

# run NAME COMMAND...: runs a long command with its output in a file, which it shows if it fails.
run() {
  local log=$work/$1.log
  shift
  "$@" >"$log" 2>&1 </dev/null || {
    tail -n 30 "$log" >&2
    echo "Failed: $*. Its output is in $log" >&2
    return 1
  }
}

codename=$(. /etc/os-release && echo "$VERSION_CODENAME")

# The system's own lists, which may have no sources, stay as they are.
list_sources() {
  find /etc/apt -name '*.list' -exec sed -nE "s/^deb( .*\b$codename.*\bmain\b)/deb-src\1/p" {} + \
    >"$work/debian.list"
  find /etc/apt -name '*.sources' -exec awk -v RS= -v ORS='\n\n' "/Suites:[^\n]*$codename/" {} + |
    sed 's/^Types:.*/Types: deb-src/' >"$work/debian.sources"
}

apt() {
  local kind=$1
  shift
  apt-get -q -o Dir::Etc::sourcelist="$work/debian.$kind" -o Dir::Etc::sourceparts=- \
    -o Dir::State::lists="$work/lists" -o APT::Sandbox::User="$(id -un)" "$@"
}

unpack_sources() {
  local kind=list
  mkdir -p "$work/lists/partial"
  list_sources
  [ ! -s "$work/debian.sources" ] || kind=sources
  run update apt $kind update
  cd "$work"
  run qt-source apt $kind source "qt6-base=$qt_version"
  run gif-source apt $kind source giflib
  # A mirror can list an update of the security team before it has it.
  run png-source apt $kind source libpng1.6 || run png-source apt $kind source "libpng1.6/$codename"
  cd - >/dev/null
}

configure() { cmake -G Ninja --toolchain "$toolchain" -DCMAKE_INSTALL_PREFIX="$work/installed" "$@"; }

build_qt() {
  local host
  host=/usr/lib/$(dpkg-architecture -qDEB_BUILD_MULTIARCH)/cmake
  [ -f "$work/qt/build.ninja" ] || run configure-qt configure -S "$work"/qt6-base-*/ -B "$work/qt" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host" "${options[@]}"
  run qt cmake --build "$work/qt"
  run install-qt cmake --install "$work/qt" --strip
}

build_png() {
  run configure-png configure -S "$work"/libpng1.6-*/ -B "$work/png" -DCMAKE_BUILD_TYPE=Release \
    -DPNG_SHARED=OFF -DPNG_TESTS=OFF
  run png cmake --build "$work/png"
  run install-png cmake --install "$work/png"
}

build_gif() {
  local files=(dgif_lib egif_lib gif_err gif_hash gifalloc openbsd-reallocarray)
  cd "$work"/giflib-*/
  run gif x86_64-w64-mingw32-gcc-posix -O2 -c "${files[@]/%/.c}"
  run gif x86_64-w64-mingw32-ar rcs "$work/installed/lib/libgif.a" "${files[@]/%/.o}"
  cp gif_lib.h "$work/installed/include"
  cd - >/dev/null
}

# The licences of all that the program for Windows contains.
copy_licences() {
  local to=$work/installed/licences
  mkdir -p "$to"
  cp "$work"/qt6-base-*/LICENSES/LGPL-3.0-only.txt "$work"/qt6-base-*/LICENSES/GPL-3.0-only.txt "$to"
  cp "$work"/qt6-base-*/debian/copyright "$to/qt.txt"
  cp "$work"/libpng1.6-*/LICENSE "$to/libpng.txt"
  cp "$work"/giflib-*/COPYING "$to/giflib.txt"
  cp /usr/share/doc/libz-mingw-w64-dev/copyright "$to/zlib.txt"
  cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$to/gcc.txt"
  cp /usr/share/doc/mingw-w64-common/copyright "$to/mingw-w64.txt"
}

echo "Building Qt ${qt_version%%+*}, libpng and giflib for Windows, once, in $folder"
if [ ! -d "$work/installed" ]; then
  say "loading the sources"
  unpack_sources
fi
mkdir -p "$work/installed/lib" "$work/installed/include"
say "building Qt, which takes most of the time"
build_qt
say "building libpng and giflib"
build_png
build_gif
copy_licences
mv "$work/installed" "$folder"
rm -rf "$work"
say "complete"
