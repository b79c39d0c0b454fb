#!/usr/bin/env bash
# Fails if clang-format would format a source file differently. The version is fixed, as versions
# differ.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need layout

find . -name 'build*' -type d -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 clang-format-14 --dry-run -Werror
echo "Layout is good"
