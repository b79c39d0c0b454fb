#!/usr/bin/env bash
# check_lint.sh BUILD: fails on a warning of clang-tidy about src/, samples/ or, if it is built,
# bench/. BUILD is a folder in which the project was configured.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need lint
build=$1

# clang does not know all warning options of the compiler.
lint=(clang-tidy-14 -p "$build" --config-file=.clang-tidy --extra-arg=-Wno-unknown-warning-option
  --quiet)

# Parsing Qt's headers takes ten seconds, so all of src/desktop/ is one source. The analyzer does not
# know that Qt's widgets own their children and is off there.
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
# Nor does the analyzer know the loops of the benchmarks.
! grep -q '/bench/data.cpp' "$build/compile_commands.json" || lint_files_in '-clang-analyzer-*' bench
echo "Lint is good"
