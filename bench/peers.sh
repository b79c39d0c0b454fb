#!/usr/bin/env bash
# bench/peers.sh [ROUNDS]: measures the tool's jobs and other programs on the same data, and prints a
# table of the medians. Both sides of a row alternate, ROUNDS times each (default 11). The data is
# in memory if the system has /dev/shm. OSTRANE_BUILD is the build folder.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
. bench/rows.sh

rounds=${1:-11}
build=${OSTRANE_BUILD:-build-bench}
need_packages "${build_packages[@]}" "${bench_packages[@]}" "${virtual_display_packages[@]}"
[ -n "${OSTRANE_ON_DISPLAY:-}" ] ||
  OSTRANE_ON_DISPLAY=yes exec scripts/on_virtual_display.sh "bench/$(basename "$0")" "$@"
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache
{
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DOSTRANE_BENCH=ON
  cmake --build "$build"
} >&2
bin=$(cd "$build/bin" && pwd)

data=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")/ostrane-peers.XXXXXX")
trap 'rm -rf "$data"' EXIT
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$data}  # else each program with Qt prints a warning
"$bin/bench_make_data" "$data"
tar -C "$data/names/empty" -cf "$data/names.tar" .
tar -C "$data/files" -cf "$data/files.tar" .

in_new_folder() {
  rm -rf "$data/archive/out" "$data/tar"
  mkdir "$data/archive/out" "$data/tar"
  "$@"
}
without_archive() {
  rm -f "$data/files/OSTRANE.DAT" "$data/new.tar"
  "$@"
}

list_names() { wall tar -tf "$data/names.tar"; }
sort_and_comm() { wall bash -c "LC_ALL=C sort '$data/names/shuffled' | LC_ALL=C comm - '$data/names/in_order'"; }
untar() { in_new_folder wall tar -C "$data/tar" -xf "$data/files.tar"; }
tar_up() { without_archive wall tar -C "$data/files" -cf "$data/new.tar" .; }
dat() { wall "$bin/ostrane-dat" "$@"; }
export_pictures() {
  rm -rf "$data/png"
  mkdir "$data/png"
  dat export "$data/pictures/ostrane.dat" I.SHP -d "$data/png"
}
bare_export() {
  rm -rf "$data/bare"
  mkdir "$data/bare"
  printed "$bin/bench_bare_png" write "$data/png" "$data/bare"
}
job() { printed "$bin/bench_job" "$1" "$data/$2"; }
window() { printed "$bin/bench_window" "$@"; }
bare_copy() { printed "$bin/bench_bare_copy" "$1" "$data/$2"; }
bare() { printed "$bin/bench_bare_qt" "$@"; }

programs() {
  row 'index of 32,768 records; `tar -tf`' 0.1 ms 1000 job index names -- list_names
  row 'compare 32,767 names; `sort` and `comm`' 1.0 ms 1000 job compare names -- sort_and_comm
  row 'extract 4,000 files, 64 MB; `tar -xf`' 1.0 ms 1000 in_new_folder job extract archive -- untar
  row 'the same; a bare loop of system calls' 1.08 ms 1000 in_new_folder job extract archive -- \
    in_new_folder bare_copy extract archive
  row 'build from the same; `tar -cf`' 1.0 ms 1000 without_archive job build files -- tar_up
  row 'the same; a bare loop of system calls' 1.08 ms 1000 without_archive job build files -- \
    without_archive bare_copy build files
}

scripts() {
  row '`ostrane-dat extract` of 4,000 files, 64 MB; `tar -xf`' 0.8 ms 1000 \
    in_new_folder dat extract "$data/archive/ostrane.dat" -d "$data/archive/out" -- untar
  row 'the same over existing files; `tar -xf`' 2 ms 1000 \
    dat extract "$data/archive/ostrane.dat" -d "$data/archive/out" -- \
    wall tar -C "$data/tar" -xf "$data/files.tar"
  row '`build` from the same; `tar -cf`' 0.95 ms 1000 without_archive dat build "$data/files" -- tar_up
  row '`list` of 32,767 names; `tar -tf`' 0.2 ms 1000 dat list "$data/names/ostrane.dat" -- list_names
  row '`export` of 5,000 icons; a bare loop with libpng' 0.5 ms 1000 export_pictures -- bare_export
  row '`import` of them; a bare loop with libpng' 0.5 ms 1000 \
    dat import "$data/png" -o "$data/new.shp" --palette "$data/pictures/ostrane.dat" -- \
    printed "$bin/bench_bare_png" read "$data/png"
  row "the same; that loop on $(nproc) threads" '' ms 1000 \
    dat import "$data/png" -o "$data/new.shp" --palette "$data/pictures/ostrane.dat" -- \
    printed "$bin/bench_bare_png" read "$data/png" "$(nproc)"
}

windows() { # PLATFORM
  local on=$1
  row "series of 300 icons, $on; painted once" 1.5 ms 1000 window icons "$data/icons" 300 -- bare icons 300
  row "series of 999 icons, $on; of 500" 2.2 ms 1000 window icons "$data/icons" 999 -- \
    window icons "$data/icons" 500
  row "32 KB of text, $on; \`setPlainText\`" 1.0 ms 1000 window text "$data/icons" -- \
    bare text "$data/icons/long.txt"
  row "the same; read and shown then, $on" '' ms 1000 window text "$data/icons" -- \
    bare read "$data/icons/long.txt"
  row "start to window, $on; empty window" '' ms 1000 wall "$bin/bench_window" start "$data/icons" -- \
    wall "$bin/bench_bare_qt" start
  row "the same; a window with a word in it, $on" 1.1 ms 1000 \
    wall "$bin/bench_window" start "$data/icons" -- wall "$bin/bench_bare_qt" label
  row "the same; a window with plain controls, $on" '' ms 1000 \
    wall "$bin/bench_window" start "$data/icons" -- wall "$bin/bench_bare_qt" controls
  row "memory then, $on; empty window" '' MB 1024 memory_of "$bin/bench_window" start "$data/icons" -- \
    memory_of "$bin/bench_bare_qt" start
  row "the same; a window with a word in it, $on" 1.15 MB 1024 \
    memory_of "$bin/bench_window" start "$data/icons" -- memory_of "$bin/bench_bare_qt" label
  row "extract, with the window, $on; \`tar -xf\`" 1.05 ms 1000 \
    in_new_folder window extract "$data/archive" -- untar
  row "build, with the window, $on; \`tar -cf\`" 1.15 ms 1000 \
    without_archive window build "$data/files" -- tar_up
}

# The most memory of a command, for an archive of the largest size beside the smallest.
memory_row() { # COMMAND SMALLEST SIZE
  row "memory of \`$1\`: ${3/-/ }; ${2/-/ }" 1.1 MB 1024 "memory_$1" "$data/growth/$3" -- \
    "memory_$1" "$data/growth/$2"
}
memory_dat() { memory_of "$bin/bench_memory_of" "$bin/ostrane-dat" "$@"; }
memory_build() { memory_dat build "$1" -o "$1.dat"; }
memory_check() { memory_dat check "$1.dat"; }
memory_diff() { memory_dat diff "$1.dat" "$1.dat"; }
memory_extract() {
  rm -rf "$data/growth/out"
  memory_dat extract "$1.dat" -d "$data/growth/out"
}

# grow COMMAND SMALLEST SIZE...: a row for each size beside the smallest one. The goal is linear growth
# and a tenth. A size is the name of a folder of bench_make_data.
grow() {
  local command=$1 smallest=$2 size
  shift 2
  for size; do
    row "\`$command\`: ${size/-/ }; ${smallest/-/ }" "$(awk "BEGIN {printf \"%.1f\", 1.1 * ${size%-*} / ${smallest%-*}}")" \
      ms 1000 "grow_$command" "$data/growth/$size" -- "grow_$command" "$data/growth/$smallest"
  done
}
grow_build() { dat build "$1" -o "$1.dat"; }
grow_list() { dat list "$1.dat"; }
grow_check() { dat check "$1.dat"; }
grow_diff() { dat diff "$1.dat" "$1.dat"; }
grow_pack() { dat pack "$1.dat"; }
grow_extract() {
  rm -rf "$data/growth/out"
  dat extract "$1.dat" -d "$data/growth/out"
}

growth() {
  local rounds=$((rounds > 3 ? 3 : rounds)) command
  local sizes=(64-MB 512-MB)
  # The largest folder, its archive, the next one and the extracted files, at the same time.
  [ "$(df --output=avail -k "$data" | tail -n 1)" -lt 9000000 ] || sizes+=(2047-MB)
  for command in build list check diff pack extract; do
    grow "$command" 1000-files 10000-files 32766-files
  done
  for command in build check extract; do grow "$command" "${sizes[@]}"; done
  for command in build check diff extract; do memory_row "$command" 64-MB "${sizes[-1]}"; done
}

# Needs a window manager: without one no window is active.
keys() {
  printed "$bin/bench_window" keys "$data/steps"
  printf '| twenty presses of Down at 20 ms each over icon files, Xvfb | row %s, %s changes of the active window | | | row 20, 0 changes |\n' \
    "$took" "$memory"
}

in_process() {
  "$bin/ostrane_bench" --benchmark_format=csv --benchmark_repetitions=$((rounds > 1 ? rounds : 2)) \
    --benchmark_enable_random_interleaving=true --benchmark_min_time=0.05 \
    --benchmark_filter='index|fread|decode|libpng|bare|memset|series' 2>"$data/errors" |
    tr -d '"' | awk -F, '$1 ~ /_median$/ {sub("_median", "", $1); print $1, $3 / 1000}' >"$data/in_process"
  of() { awk -v name="$1" '$1 == name {print $2}' "$data/in_process"; }
  in_process_row() { line "$1" "$(of "$2")" "$(of "$3")" "$4" ms; }
  in_process_row 'index of 32,768 records; `fread` and splitting' read_index_into_list fread_and_split 1.6
  in_process_row '5,000 icons from the file; libpng' decode_icons_from_file libpng_from_file 0.25
  in_process_row 'their streams alone; `memset`' decode_streams_in_memory memset_of_the_pixels 8
  in_process_row 'the same; a bare loop' decode_streams_in_memory bare_loop_over_streams ''
  in_process_row 'series of 999 icons without a screen; of 500' draw_series/999 draw_series/500 2.2
  printf '| series of 300 icons without a screen | %.2f ms | | | 30 ms |\n' "$(of draw_series/300)"
}

heading
in_process
programs
scripts
growth
QT_QPA_PLATFORM=offscreen windows offscreen
QT_QPA_PLATFORM=xcb windows Xvfb
QT_QPA_PLATFORM=xcb keys
