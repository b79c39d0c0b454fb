#!/usr/bin/env bash
# list_files.sh FOLDER LISTS: writes the commands of NSIS that install and remove exactly the files of
# FOLDER: LISTS/install.nsh and LISTS/uninstall.nsh.
set -euo pipefail
cd "$1"

windows_path() { tr / '\\' <<<"${1#./}"; }

folders() { find . -mindepth 1 -type d | LC_ALL=C sort "$@"; }

{
  echo 'SetOutPath "$INSTDIR"'
  find . -maxdepth 1 -type f | LC_ALL=C sort | sed 's/.*/File "&"/'
  while read -r folder; do
    echo "SetOutPath \"\$INSTDIR\\$(windows_path "$folder")\""
    find "$folder" -maxdepth 1 -type f | LC_ALL=C sort | sed 's/.*/File "&"/'
  done < <(folders)
} | sed "s#\"\./#\"$PWD/#" >"$2/install.nsh"

{
  while read -r file; do
    echo "Delete \"\$INSTDIR\\$(windows_path "$file")\""
  done < <(find . -type f | LC_ALL=C sort)
  while read -r folder; do
    echo "RMDir \"\$INSTDIR\\$(windows_path "$folder")\""
  done < <(folders -r)
} >"$2/uninstall.nsh"
