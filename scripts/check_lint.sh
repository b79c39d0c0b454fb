#!/usr/bin/env bash
# check_lint.sh BUILD: fails on a complaint of clang-tidy about src/, samples/ or, if it is built,
# bench/. BUILD is a folder in which the project was configured.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/clang_tools.sh
build=$1

tidy=$(clang_tool clang-tidy) || {
  echo "Lint is not checked: no clang-tidy $clang_version here"
  exit 0
}
# The compiler's own warning options are not all known to clang.
lint=("$tidy" -p "$build" --config-file=.clang-tidy --extra-arg=-Wno-unknown-warning-option --quiet)

# Going through Qt's headers takes ten seconds, so that is done once for all of src/desktop/. The
# analyzer does not know that Qt's widgets own their children and is left out there.
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
# The analyzer does not know the loops of the benchmarks either.
! grep -q '/bench/data.cpp' "$build/compile_commands.json" || lint_files_in '-clang-analyzer-*' bench
echo "Lint is good"
