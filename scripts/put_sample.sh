#!/usr/bin/env bash
# put_sample.sh FROM TO: copies the files of the sample to the folder TO. A file that was changed
# there since is kept.
set -euo pipefail
from=$(cd "$1" && pwd)
mkdir -p "$2/files"
cd "$2"

# The output of sha256sum for the files as copied.
as_put=.as-put
touch $as_put

is_as_put() { grep -- "  $1\$" $as_put | sha256sum --status --check 2>/dev/null; }

put() {
  cmp --quiet "$from/$1" "$1" && return
  if [ -e "$1" ] && ! is_as_put "$1"; then
    echo "Kept your own $PWD/$1"
    return
  fi
  cp "$from/$1" "$1"
}

cd "$from"
mapfile -t files < <(find . -type f -printf '%P\n' | sort)
cd - >/dev/null
for file in "${files[@]}"; do
  put "$file"
done
(cd "$from" && sha256sum "${files[@]}") >$as_put
