#!/usr/bin/env bash
# check_documents.sh BUILD: runs the commands in README.md and CONTRIBUTING.md, except for the steps of
# test.sh. They run in a copy of the tree, with a separate home and installation folder. Package
# installations are simulated. Objects come from BUILD, a finished build of the preset release.
set -euo pipefail
cd "$(dirname "$0")/.."
OSTRANE_OBJECTS=$(cd "$1" && pwd)
export OSTRANE_OBJECTS CMAKE_CXX_COMPILER_LAUNCHER=$PWD/scripts/object_from_build.sh

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tree" "$work/home" "$work/installed"
tar -c --exclude='./build*' --exclude=./.git . | tar -x -C "$work/tree"
echo 'APT::Get::Simulate "true";' >"$work/apt.conf"

# Prints the indented blocks and the last columns of tables, each with a NUL at the end.
commands_in() {
  awk '
    /^    / { block = block substr($0, 5) "\n"; next }
    block != "" { printf "%s%c", block, 0; block = "" }
    /^\|.*\| `[^`]*` \|$/ { sub(/.*\| `/, ""); sub(/` \|$/, ""); printf "%s\n%c", $0, 0 }
    END { if (block != "") printf "%s%c", block, 0 }' "$1"
}

steps=$(<test.sh)
cat >"$work/replacements" <<'EOS'
sudo() { "$@"; }
./test.sh() { :; }
# Builds Qt if it is missing. The step "Windows" runs it if not.
scripts/build_windows.sh() { :; }
# The tests have been run before.
ctest() { [ -x build/bin/ostrane_tests ]; }
# Building with the fault takes minutes. It must still be one.
scripts/plant_fault.sh() { ! sed "$2" "$1" | cmp -s - "$1"; }
# The tool runs until timeout ends it.
build/bin/ostrane-dat-tool() {
  local status=0
  QT_QPA_PLATFORM=offscreen timeout 5 ./build/bin/ostrane-dat-tool || status=$?
  [ $status -eq 124 ]
}
# The sample replaces the reader's archive.
ostrane-dat() {
  [ -f ostrane.dat ] || cp build/sample/ostrane.dat .
  build/bin/ostrane-dat "$@"
}
gimp() { [ -f "$1" ]; }
ostrane-dat-tool() { :; }
EOS

count=0
run_commands_in() {
  local command
  while IFS= read -rd '' command; do
    command=${command%$'\n'}
    [[ $steps != *"'$command'"* ]] || continue
    printf '\n%s shows:\n%s\n' "$1" "$command"
    env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -C "$work/tree" HOME="$work/home" \
      DESTDIR="$work/installed" APT_CONFIG="$work/apt.conf" \
      bash -euo pipefail -c '. "$1"; eval "$2"' bash "$work/replacements" "$command" </dev/null
    count=$((count + 1))
  done < <(commands_in "$1")
}
run_commands_in README.md
run_commands_in CONTRIBUTING.md
[ $count -ge 6 ] || {
  echo "Only $count commands were found" >&2
  exit 1
}

left=$(find "$work/installed" -mindepth 1)
[ -z "$left" ] || {
  echo "Left after uninstalling: $left" >&2
  exit 1
}
echo "The documents' commands work"
