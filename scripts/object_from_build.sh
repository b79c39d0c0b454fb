#!/usr/bin/env bash
# A compiler launcher for checks that are not about compiling: takes an object from OSTRANE_OBJECTS, a
# build folder of the same sources. Compiles what is missing there.
set -euo pipefail
output=
dependencies=/dev/null
for ((i = 1; i < $#; ++i)); do
  next=$((i + 1))
  case ${!i} in
    -o) output=${!next} ;;
    -MF) dependencies=${!next} ;;
  esac
done
[[ $output == *.o && -f $OSTRANE_OBJECTS/$output ]] || exec "$@"
cp "$OSTRANE_OBJECTS/$output" "$output"
: >"$dependencies"
