#!/usr/bin/env bash
# run.sh SECONDS [SEED]: builds the monkey and uses the windows at random with 20,000 actions per seed,
# from SEED on, until the time has passed. Fails on a finding; its log is then build-monkey/log, and its
# last actions are in the folder that the log begins with.
set -euo pipefail
cd "$(dirname "$0")/../.."
[ $# -ge 1 ] || {
  echo "usage: fuzz/monkey/run.sh SECONDS [SEED]" >&2
  exit 2
}
cmake --preset monkey
cmake --build --preset monkey --target monkey

export QT_QPA_PLATFORM=offscreen FONTCONFIG_FILE=$PWD/tests/desktop/font/fonts.conf
# Qt and fontconfig keep some memory until exit.
export ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=64
seed=${2:-1}
until [ "$SECONDS" -ge "$1" ]; do
  build-monkey/bin/monkey "$seed" 20000 >build-monkey/log 2>&1 || {
    tail -n 60 build-monkey/log
    echo "Seed $seed: a finding"
    exit 1
  }
  seed=$((seed + 1))
done
echo "$SECONDS seconds, up to seed $((seed - 1)): no findings"
