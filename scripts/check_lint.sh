#!/usr/bin/env bash
# check_lint.sh BUILD: fails on a clang-tidy warning in src/, in samples/, or in bench/ if that is
# configured. BUILD is a configured build folder without precompiled headers, such as build-release.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need lint
build=$1

# clang does not support all warning options of GCC.
lint=(clang-tidy-14 -p "$build" --config-file=.clang-tidy --extra-arg=-Wno-unknown-warning-option
  --quiet)

# Parsing Qt's headers takes ten seconds, so src/desktop/ is checked as one source. The analyzer is
# off there, as it does not know that a Qt widget owns its children.
windows=$build/src/desktop/all_windows.cpp
printf '#include "%s"\n' "$PWD"/src/desktop/*.cpp >"$windows"
"${lint[@]}" --checks=-clang-analyzer-*,-bugprone-suspicious-include "$windows"

lint_files_in() {
  local checks=$1
  shift
  find "$@" \( -path src/desktop -o -name '*_windows.cpp' \) -prune -o -name '*.cpp' -print0 |
    xargs -0 -n 4 -P "$(nproc)" "${lint[@]}" --checks="$checks"
}
lint_files_in '' src samples
# The analyzer also gives false warnings for the loops of the benchmarks.
! grep -q '/bench/data.cpp' "$build/compile_commands.json" || lint_files_in '-clang-analyzer-*' bench
echo "Lint is good"
