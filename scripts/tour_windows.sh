#!/usr/bin/env bash
# tour_windows.sh PROGRAMS PICTURES [SCALE]: uses the program for Windows in the folder PROGRAMS as a new user
# does, under Wine: opens the sample, shows and plays an icon file, extracts, builds, compares, saves a
# picture. Checks the files and writes screenshots to PICTURES. Needs a separate display with a window
# manager.
set -euo pipefail
programs=$(cd "$1" && pwd)
mkdir -p "$2"
pictures=$(cd "$2" && pwd)
scale=${3:-1}
title=Ostrane.dat-tool

fail() {
  import -window root "$pictures/failed.png" || true
  echo "The tour failed: $*. See $pictures/failed.png" >&2
  exit 1
}

# until_true COMMAND...: waits for it.
until_true() {
  for _ in $(seq 300); do
    "$@" && return
    sleep 0.2
  done
  fail "$*"
}

has_window() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
has_no_window() { ! has_window "$1"; }
window() {
  until_true has_window "$1"
  xdotool search --onlyvisible --name "$1" | tail -n 1
}

# The position is in twips from the corner of the client area.
click() {
  xdotool mousemove --sync --window "$1" $(($2 * scale / 15)) $((($3 * scale) / 15)) click "${4:-1}"
  sleep 0.5
}

press() {
  xdotool key --delay 100 "$@"
  sleep 0.5
}

text() {
  xdotool type --delay 20 "$1"
  sleep 0.5
}

picture() {
  sleep 1
  import -window root "$pictures/$1.png"
}

activate() { xdotool windowactivate --sync "$1" && sleep 0.5; }

# A message box has the title of the tool, as the main window has.
boxes() { xdotool search --onlyvisible --name "^$title" | wc -l; }
is_message_open() { [ "$(boxes)" -gt "$1" ]; }
answer_message() {
  until_true is_message_open "$1"
  picture "$2"
  press Return
}

drive=$WINEPREFIX/drive_c
rm -rf "$drive/out" "$drive/series.png"
mkdir -p "$drive/out"
# As the user's setting of the display.
wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $((scale * 96)) /f >/dev/null
cd "$drive/users"
wine "$programs/ostrane-dat-tool.exe" &
tool=$!
trap 'kill $tool 2>/dev/null || true' EXIT

main=$(window "^$title")
activate "$main"
picture main

press alt+f o
chooser=$(window 'Select Ostrane.dat')
activate "$chooser"
click "$chooser" 1000 1500
# A list finds a row by the first letters of its name.
IFS=/ read -ra steps <<<"${programs#"$drive"/}/sample"
for step in "${steps[@]}"; do
  text "${step%%[!A-Za-z0-9-]*}"
  press Return
done
picture open
click "$chooser" 1200 3850
until_true has_no_window 'Select Ostrane.dat'

# The menu bar is above the client area as designed.
menu=300
activate "$main"
click "$main" 450 1200
text VISTA.SHP
sleep 2
import -window "$main" "$pictures/screenshot.png"

click "$main" 2700 $((1500 + menu)) 3
picture context_menu
press Down Down Return
window . >/dev/null
sleep 1
picture save_dialog
press ctrl+a
text 'C:\out\picture.png'
press Return
until_true test -s "$drive/out/picture.png"

activate "$main"
click "$main" $((1800 + 4500)) $((500 + menu))
sleep 2
picture motion
press space

# Another folder for each job.
mkdir -p "$drive/out/entries"
activate "$main"
press alt+i e
extract=$(window 'Extract Files from')
activate "$extract"
click "$extract" 3000 3840
press ctrl+a
text 'C:\out\entries'
picture extract
click "$extract" 5800 500
answer_message 0 extracted
until_true test -s "$drive/out/entries/VISTA.SHP"

main=$(window "^$title")
activate "$main"
press alt+i m
make=$(window 'Make New Ostrane.dat')
activate "$make"
click "$make" 1000 750
press Return
for step in out entries; do
  text $step
  press Return
done
picture build
click "$make" 1200 5000
answer_message 1 built
cmp "$drive/out/entries/OSTRANE.DAT" "$programs/sample/ostrane.dat" || fail "the archive differs"

press alt+F4
until_true has_no_window "^$title"
wait $tool
trap - EXIT
echo "The tour is complete; its pictures are in $pictures"
