#!/usr/bin/env bash
# check_windows_setup.sh SETUP STAGE: installs silently under Wine, for one user and for all, compares
# the files with the folder STAGE, starts the program from its menu entry if there is a display, and
# uninstalls. A file of the user must stay, and nothing else.
set -euo pipefail
setup=$(realpath "$1")
stage=$(realpath "$2")
cd "$(dirname "$0")/.."
. scripts/windows.sh
drive=$WINEPREFIX/drive_c
title='^Ostrane.dat-tool'

fail() {
  echo "The setup fails: $*" >&2
  exit 1
}

is_gone() { [ ! -e "$1" ]; }
menu_entries() { find "$drive" -name 'Ostrane.dat-tool.lnk'; }

# The list is saved in the working folder of the menu entry, the user's documents.
start_from_menu() {
  wine start /unix "$1"
  until_true has_window "$title"
  sleep 1
  xdotool key --delay 100 alt+F4
  until_true has_no_window "$title"
}

# Succeeds if "Open with" of a .dat file in this part of the registry knows the program.
is_offered() {
  local classes="$1\\Software\\Classes" program=ostrane-dat-tool.exe
  wine reg query "$classes\\.dat\\OpenWithList\\$program" >/dev/null 2>&1 &&
    wine reg query "$classes\\Applications\\$program\\shell\\open\\command" 2>/dev/null |
    grep -q "Ostrane.dat-tool\\\\$program\" \"%1\""
}
is_not_known() {
  ! wine reg query "$1\\Software\\Classes" /s 2>/dev/null | grep -qi -e ostrane -e '\\.dat\\OpenWithList'
}

check() {
  local mode=$1 root=$2 folder=$3 entry
  wine "$setup" /S "/$mode"
  diff -r "$stage" "$folder" | grep -v "^Only in .*: uninstall.exe$" && fail "other files than in $stage"
  entry=$(menu_entries)
  [ -n "$entry" ] || fail "no menu entry"
  tr -d '\0' <"$entry" | grep -aqi 'Documents' || fail "the working folder is not that of the documents"
  is_offered "$root" || fail "no entry of Open with"
  [ -z "${DISPLAY:-}" ] || start_from_menu "$entry"
  echo mine >"$folder/sample/mine.txt"
  wine "$folder/uninstall.exe" /S
  until_true is_gone "$folder/uninstall.exe"
  until_true is_gone "$entry"
  [ "$(find "$folder" -type f)" = "$folder/sample/mine.txt" ] || fail "$(find "$folder") is left"
  [ "$(cat "$folder/sample/mine.txt")" = mine ] || fail "a file of the user has changed"
  rm -r "$folder"

  wine "$setup" /S "/$mode"
  wine "$folder/uninstall.exe" /S
  until_true is_gone "$folder"
  is_not_known "$root" || fail "the registry still knows the program"
  echo "Installed and uninstalled for $mode"
}

user=$(find "$drive/users" -mindepth 1 -maxdepth 1 ! -name Public | head -n 1)
check CurrentUser HKCU "$user/AppData/Local/Programs/Ostrane.dat-tool"
check AllUsers HKLM "$drive/Program Files/Ostrane.dat-tool"
