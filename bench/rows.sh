#!/usr/bin/env bash
# Source this file to measure two sides in turn and to print rows of a table. `data` is a folder for
# what they print, `rounds` how often each side is measured.

# Each of these sets `took`, in microseconds.
wall() {
  local began=${EPOCHREALTIME/./}
  "$@" >"$data/output"
  took=$((${EPOCHREALTIME/./} - began))
}
printed() { # The program prints its microseconds, and its memory in KB.
  "$@" >"$data/output"
  read -r took memory <"$data/output"
}
memory_of() {
  printed "$@"
  took=$memory
}

median() { sort -n "$1" | awk '{v[NR] = $1} END {print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2}'; }

line() { # NAME OURS BASELINE GOAL UNIT
  awk -v name="$1" -v ours="$2" -v baseline="$3" -v goal="$4" -v unit="$5" 'BEGIN {
    if (ours <= 0 || baseline <= 0) exit 1
    printf "| %s | %.2f %s | %.2f %s | %.2f | %s |\n", name, ours, unit, baseline, unit, ours / baseline, goal}'
}

row() { # NAME GOAL UNIT DIVISOR, then OURS... -- BASELINE...
  local name=$1 goal=$2 unit=$3 divisor=$4 ours=() i
  shift 4
  while [ "$1" != -- ]; do
    ours+=("$1")
    shift
  done
  shift
  : >"$data/ours"
  : >"$data/baseline"
  for ((i = 0; i < rounds; i++)); do
    "${ours[@]}"
    echo "$took" >>"$data/ours"
    "$@"
    echo "$took" >>"$data/baseline"
  done
  line "$name" "$(median "$data/ours" | awk "{print \$1 / $divisor}")" \
    "$(median "$data/baseline" | awk "{print \$1 / $divisor}")" "$goal" "$unit"
}

heading() {
  printf '| Work | Tool | Baseline | Ratio | Goal |\n|---|--:|--:|--:|---|\n'
}
