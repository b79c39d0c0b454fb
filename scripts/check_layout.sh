#!/usr/bin/env bash
# Fails if clang-format would change a source file. Versions format differently, so the version is
# fixed.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need layout

find . -name 'build*' -type d -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 clang-format-14 --dry-run -Werror
echo "Layout is good"
