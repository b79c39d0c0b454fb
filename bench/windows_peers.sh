#!/usr/bin/env bash
# bench/windows_peers.sh [ROUNDS]: builds ostrane-dat and a bare loop for Windows, runs both under Wine
# and prints a table like that of peers.sh. Each side includes the start of a program under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
. bench/rows.sh
need windows
. scripts/windows.sh
rounds=${1:-11}

{
  googletest_for_windows
  configure_tool -DOSTRANE_BENCH=ON -DOSTRANE_DESKTOP=OFF
  cmake --build "$windows_build/tool" --target ostrane-dat bench_make_data bench_bare_copy
} >&2
bin=$windows_build/tool/bin
data=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")/ostrane-peers.XXXXXX")
trap 'end_wine; rm -rf "$data"' EXIT
cd "$data"  # Wine does not translate arguments
wine "$bin/bench_make_data.exe" . files

in_new_folder() {
  rm -rf archive/out
  mkdir archive/out
  wall wine "$@"
}
without_archive() {
  rm -f files/OSTRANE.DAT
  wall wine "$@"
}

heading
row '`ostrane-dat extract` of 4,000 files, 64 MB, Wine; a bare loop' '' ms 1000 \
  in_new_folder "$bin/ostrane-dat.exe" extract archive/ostrane.dat -d archive/out -- \
  in_new_folder "$bin/bench_bare_copy.exe" extract archive
row '`build` from the same, Wine; a bare loop' '' ms 1000 \
  without_archive "$bin/ostrane-dat.exe" build files -- \
  without_archive "$bin/bench_bare_copy.exe" build files
row '`list` of 4,000 names, Wine; `--version`' '' ms 1000 \
  wall wine "$bin/ostrane-dat.exe" list archive/ostrane.dat -- wall wine "$bin/ostrane-dat.exe" --version
