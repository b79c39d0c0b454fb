#!/usr/bin/env bash
# Builds the fuzz targets and runs all of them or TARGET. Fails on a finding, whose input is then in
# build-fuzz/findings.
#   run.sh SECONDS [TARGET]  runs each target for SECONDS, starting from fuzz/corpus. Inputs that
#                            reach new code are kept in build-fuzz/corpus for the next run.
#   run.sh short [TARGET]    runs a fixed set of some thousand inputs per target
#   run.sh corpus [TARGET]   reduces fuzz/corpus and the kept inputs to the fewest with the same
#                            coverage, and replaces fuzz/corpus by them
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

[ $# -ge 1 ] || {
  echo "usage: fuzz/run.sh SECONDS|short|corpus [TARGET]" >&2
  exit 2
}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(archive icon lists build import)

need fuzz
build=$PWD/build-fuzz
! command -v ccache >/dev/null || export CMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --preset fuzz
cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"

# The drives are in memory if the system has a folder there.
work=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work
export ASAN_OPTIONS=quarantine_size_mb=8

options=(-rss_limit_mb=768 -malloc_limit_mb=32 -max_len=4096 -print_final_stats=1)

# Prints the statistics of a run in one line.
summary() {
  awk -v target="$1" '
    /cov: / { for (i = 1; i < NF; ++i) if ($i == "cov:") cov = $(i + 1) }
    /number_of_executed_units/ { runs = $2 }
    /average_exec_per_sec/ { pace = $2 }
    /peak_rss_mb/ { peak = $2 }
    END { printf "%s: %d executions, %d a second, cov %d, peak %d MB", target, runs, pace, cov, peak
    }' "$2"
}

# Counts of edges are ignored, which keeps the corpus small.
shrink_corpus() {
  local shrunk=$work/shrunk
  mkdir -p "$build/corpus/$1" "$shrunk"
  "$build/bin/fuzz_$1" "${options[@]}" -merge=1 -use_counters=0 "$shrunk" "fuzz/corpus/$1" \
    "$build/corpus/$1" 2>&1 | tail -n 1
  rm -rf "fuzz/corpus/$1"
  mv "$shrunk" "fuzz/corpus/$1"
}

failed=0
mkdir -p "$build/findings"
for target in "${targets[@]}"; do
  if [ "$1" = corpus ]; then
    shrink_corpus "$target"
    continue
  fi
  corpus=$build/corpus/$target
  bound=(-max_total_time="$1" -timeout=10)
  if [ "$1" = short ]; then
    corpus=$work/corpus
    rm -rf "$corpus"
    bound=(-runs=1500 -seed=1 -timeout=30)
  fi
  mkdir -p "$corpus"
  log=$work/$target.log
  if "$build/bin/fuzz_$target" "${options[@]}" "${bound[@]}" \
    -artifact_prefix="$build/findings/$target-" "$corpus" "fuzz/corpus/$target" >"$log" 2>&1; then
    echo "$(summary "$target" "$log"), no findings"
  else
    failed=1
    tail -n 60 "$log"
    echo "$(summary "$target" "$log"), 1 finding"
  fi
done
exit $failed
