#!/usr/bin/env bash
# check_completion.sh PREFIX: checks that the completion for bash in an installation finds the archive.
set -euo pipefail
prefix=$(cd "$1" && pwd)
HOME=$(mktemp -d)
trap 'rm -rf "$HOME"' EXIT
mkdir "$HOME/c" "$HOME/files"
cd "$HOME"
# A name that must not run as a command.
touch files/VISTA.SHP 'files/V$(>ran).TXT'
PATH=$prefix/bin:$PATH
ostrane-dat build files -o ostrane.dat
cp ostrane.dat 'my arch.dat'
cp ostrane.dat c

. "$prefix/share/bash-completion/completions/ostrane-dat"
checked=0
while read -ra COMP_WORDS; do
  COMP_WORDS=("${COMP_WORDS[@]//_/ }")  # a _ stands for a blank in a word
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _ostrane_dat
  [ "${COMPREPLY[*]}" = 'V$(>RAN).TXT VISTA.SHP' ] && [ ! -e ran ] && [ ! -e RAN ] || {
    echo "Completion of ${COMP_WORDS[*]}: ${COMPREPLY[*]}" >&2
    exit 1
  }
  checked=$((checked + 1))
done <<'EOS'
ostrane-dat extract ostrane.dat V
ostrane-dat extract -q ostrane.dat v
ostrane-dat extract -d c ostrane.dat VISTA.SHP "V
ostrane-dat export --as = gif --pace 3 ostrane.dat V
ostrane-dat remove my\_arch.dat V
ostrane-dat remove "my_arch.dat" V
ostrane-dat remove ~/c/ostrane.dat V
EOS
[ $checked -eq 7 ]
