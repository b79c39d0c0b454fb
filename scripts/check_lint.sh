#!/usr/bin/env bash
# check_lint.sh BUILD: fails on a clang-tidy warning in src/, in samples/, or in bench/ if that is
# configured. BUILD is a configured build folder without precompiled headers, such as build-release.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need lint
build=$1

# lint_together CHECKS FILE...: lints files of a folder as one source, as most of the time goes into
# their headers. If that fails, lints each file: names of two files may conflict.
lint_together() {
  # clang does not support all warning options of GCC.
  local lint=(clang-tidy-14 -p "$build" --config-file=.clang-tidy --checks="$1" --quiet
    --extra-arg=-Wno-unknown-warning-option)
  shift
  local all file status=0
  mkdir -p "$build/${1%/*}"
  all=$(mktemp --suffix=.cpp "$build/${1%/*}/lint.XXXXXX")
  for file in "$@"; do
    printf '#line 1 "%s"\n' "$PWD/$file"
    cat "$file"
  done >"$all"
  [ $# -gt 1 ] && "${lint[@]}" "$all" >/dev/null 2>&1 || "${lint[@]}" "$@" || status=1
  rm "$all"
  return $status
}
export -f lint_together
export build

# files_in FOLDER: prints the sources in the folder that are compiled on this system.
files_in() { find "$1" -maxdepth 1 -name '*.cpp' ! -name '*_windows.cpp' ! -name 'no_*' | sort; }

# Prints the arguments of lint_together, one call per line, the longest one first. The analyzer is off
# for src/desktop, as it does not know that a Qt widget owns its children, and for the benchmarks, as
# it gives false warnings for their loops. Each benchmark has its own main.
list_calls() {
  local folder
  echo '-clang-analyzer-*' $(files_in src/desktop)
  for folder in $(find src samples -type d ! -path src/desktop); do
    files_in "$folder" | xargs -r -n 8 echo 'clang-analyzer-*'
  done
  ! grep -q '/bench/data.cpp' "$build/compile_commands.json" ||
    files_in bench | xargs -n 1 echo '-clang-analyzer-*'
}

set -f
list_calls | xargs -L 1 -P "$(nproc)" bash -euo pipefail -fc 'lint_together "$@"' bash
echo "Lint is good"
