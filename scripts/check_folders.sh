#!/usr/bin/env bash
# check_folders.sh BUILD: builds, packages, installs and uninstalls in folders with unusual names, each
# beside neighbours whose names are beginnings of its name. BUILD is a finished build of the preset
# release. The first folder compiles all of the tool, and its package must equal that of BUILD. The
# others build without windows, from the objects of BUILD.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need build package package-check
build=$(cd "$1" && pwd)
cmake --build "$build"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home
mkdir "$HOME"

fail() {
  echo "$*" >&2
  exit 1
}

files=("$HOME/file")
# The neighbours of the folder $1: all folders whose names are beginnings of its name.
add_neighbours() {
  local length name=${1##*/}
  for ((length = 1; length < ${#name}; ++length)); do
    mkdir -p "${1%/*}/${name:0:length}"
    files+=("${1%/*}/${name:0:length}/file")
  done
}
make_files() {
  local file
  for file in "${files[@]}"; do echo mine >"$file"; done
}
check_files() {
  local file
  for file in "${files[@]}"; do
    [ "$(cat "$file")" = mine ] || fail "Not there after $1: $file"
  done
}

# The files have the time of the copy, as in a clone.
copy_tree() { mkdir -p "$1" && tar -c --exclude='./build*' --exclude=./.git . | tar -xm -C "$1"; }

# build_in TREE OPTION...: builds the copy of the sources, and a package of it.
build_in() {
  local tree=$1
  shift
  mkdir -p "$tree/build/sample"
  touch "$tree/build/sample/notes"
  cmake -S "$tree" -B "$tree/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRANE_TESTS=OFF \
    -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON "$@" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
  cmake --build "$tree/build" >"$work/log" || fail "$(cat "$work/log")"
  (cd "$tree/build" && LC_ALL=C.UTF-8 cpack >"$work/log" 2>&1) || fail "$(cat "$work/log")"
  [ -e "$tree/build/sample/notes" ] || fail "The build removed a file in $tree/build"
  check_files "the build in $tree"
}

uninstall() { cmake -D BUILD="$1/build" -P "$1/packaging/uninstall.cmake" >"$work/log" 2>&1; }
count_installed() { find "$1" ! -type d | wc -l; }

# install_below PREFIX TREE: installs the build there and uninstalls it.
install_below() {
  local prefix=$1 tree=$2 record=$2/build/packaging/installed.txt count
  cmake --install "$tree/build" --prefix "$prefix" >/dev/null
  "$prefix/bin/ostrane-dat" list "$prefix"/share/doc/*/examples/ostrane.dat >/dev/null
  grep -q '^Files: CLI' "$prefix"/share/doc/*/copyright
  ls "$prefix"/share/{man/man1/ostrane-dat.1,bash-completion/completions/ostrane-dat} >/dev/null

  # A path outside the prefix stops it before it removes anything.
  count=$(count_installed "$prefix")
  cp "$record" "$work/record"
  echo "${files[-1]}" >>"$record"
  ! uninstall "$tree" || fail "A foreign path in $record is not an error"
  [ "$(count_installed "$prefix")" -eq "$count" ] || fail "A foreign path in $record is found too late"
  cp "$work/record" "$record"

  # A path that it cannot remove is an error.
  rm "$prefix/bin/ostrane-dat"
  mkdir "$prefix/bin/ostrane-dat"
  ! uninstall "$tree" || fail "A path that is left is not an error"
  rmdir "$prefix/bin/ostrane-dat"

  uninstall "$tree" || fail "$(cat "$work/log")"
  [ ! -e "$prefix" ] || fail "Left: $(find "$prefix")"
  check_files "uninstalling from $prefix"
}

names=('A&B' 'tool (1)' 'Große Änderung' "it's \$HOME; x")
for name in "${names[@]}"; do
  add_neighbours "$work/trees/$name"
  add_neighbours "$work/prefixes/$name"
done
make_files

copy_tree "$work/trees/A&B"
build_in "$work/trees/A&B"
install_below "$work/prefixes/A&B" "$work/trees/A&B"
(cd "$build" && cpack -B "$work/package" >/dev/null 2>&1)
cmp "$work"/package/*.deb "$work"/trees/A\&B/build/*.deb

export OSTRANE_OBJECTS=$build CMAKE_CXX_COMPILER_LAUNCHER=$PWD/scripts/object_from_build.sh
for name in 'tool (1)' 'Große Änderung'; do
  copy_tree "$work/trees/$name"
  build_in "$work/trees/$name" -DOSTRANE_DESKTOP=OFF
  install_below "$work/prefixes/$name" "$work/trees/$name"
done

# CMake cannot build in a path with a semicolon. A link has another path.
name=${names[3]}
copy_tree "$work/trees/$name"
! cmake -S "$work/trees/$name" -B "$work/trees/$name/build" >"$work/log" 2>&1 ||
  fail "Configured in $name"
grep -q 'semicolon' "$work/log" || fail "$(cat "$work/log")"
check_files "the refusal"
rm -r "$work/trees/$name/build"
link="$work/trees/it's \$HOME, x"
ln -s "$name" "$link"
build_in "$link" -DOSTRANE_DESKTOP=OFF
install_below "$work/prefixes/$name" "$link"

lintian --allow-root --fail-on error,warning "$work/trees/$name"/build/*.deb
echo "Folders are good"
