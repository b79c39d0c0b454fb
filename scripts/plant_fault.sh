#!/usr/bin/env bash
# scripts/plant_fault.sh FILE EXPRESSION [TESTS]: changes FILE by a sed expression, builds the preset
# debug, runs the tests whose names match the regular expression TESTS (default: all) and restores
# FILE. Prints the tests that fail. Status: 0 if at least one fails, 1 if the fault goes unseen, 2 if
# nothing was changed or the change does not compile.
set -euo pipefail
cd "$(dirname "$0")/.."
file=$1 expression=$2 tests=${3:-.}

work=$(mktemp -d)
cp "$file" "$work/kept"
# Without the old time, so that the next build compiles the file again.
trap 'cp "$work/kept" "$file"; rm -rf "$work"' EXIT
sed -i "$expression" "$file"
if diff "$work/kept" "$file"; then
  echo "The expression changes nothing in $file." >&2
  exit 2
fi
[ -d build-debug ] || cmake --preset debug >/dev/null
if ! cmake --build --preset debug >"$work/log" 2>&1; then
  tail -n 20 "$work/log" >&2
  exit 2
fi
if ctest --preset debug -j "$(nproc)" -R "$tests" >"$work/log" 2>&1; then
  echo "No test fails."
  exit 1
fi
grep -F '***' "$work/log" || { cat "$work/log" && exit 2; }
grep -oE '^\[  FAILED  \] \S+$' "$work/log" | sort -u || true  # a crash prints none
