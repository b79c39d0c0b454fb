#!/usr/bin/env bash
# Fails if clang-format would lay out a source file in another way. Versions differ in taste, so
# only the one that the project uses is asked.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/clang_tools.sh

format=$(clang_tool clang-format) || {
  echo "Layout is not checked: no clang-format $clang_version here"
  exit 0
}
find . -name 'build*' -type d -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 "$format" --dry-run -Werror
echo "Layout is good"
