#!/usr/bin/env bash
# tour_windows.sh PROGRAMS PICTURES [SCALE]: uses the program for Windows in the folder PROGRAMS as a new user
# does, under Wine: opens the sample, shows and plays an icon file, saves a picture, extracts, builds and
# compares. Checks the files and writes screenshots to PICTURES. Needs a separate display with a window
# manager.
set -euo pipefail
programs=$(cd "$1" && pwd)
mkdir -p "$2"
pictures=$(cd "$2" && pwd)
scale=${3:-1}
title=Ostrane.dat-tool
cd "$(dirname "$0")/.."
. scripts/windows.sh

fail() {
  import -window root "$pictures/failed.png" || true
  echo "The tour failed: $*. See $pictures/failed.png" >&2
  exit 1
}

is_found() { found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [ -n "$found" ]; }
window() {
  until_true is_found "$1"
  echo "$found"
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
boxes() { xdotool search --onlyvisible --name "^$title" 2>/dev/null | wc -l; }
is_message_open() { [ "$(boxes)" -gt "$1" ]; }
answer_message() {
  until_true is_message_open "$1"
  picture "$2"
  press Return
}

drive=$WINEPREFIX/drive_c
rm -rf "$drive/out" "$drive/many" "$drive/users/shplist.txt" "$drive/Shiplist-compare.txt"
mkdir -p "$drive/out" "$drive/many"
# As the user's settings of the display. Wine cuts off the letter "I" without ClearType, which is the default
# on Windows.
display='HKCU\Control Panel\Desktop'
wine reg add "$display" /v LogPixels /t REG_DWORD /d $((scale * 96)) /f >/dev/null
wine reg add "$display" /v FontSmoothingType /t REG_DWORD /d 2 /f >/dev/null
start() {
  wine "$programs/ostrane-dat-tool.exe" "$@" &
  tool=$!
  trap 'kill $tool 2>/dev/null || true' EXIT
  main=$(window "^$title")
  activate "$main"
}

end() {
  activate "$main"
  press alt+F4
  until_true has_no_window "^$title"
  wait $tool
  trap - EXIT
}

cd "$drive/users"
start
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

# extract_to FOLDER PICTURE
extract_to() {
  local extract
  mkdir -p "$drive/out/$1"
  activate "$main"
  press alt+i e
  extract=$(window 'Extract Files from')
  activate "$extract"
  click "$extract" 3000 3840
  press ctrl+a
  text "C:\\out\\$1"
  picture "$2"
  click "$extract" 5800 500
}

extract_to entries extract
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

main=$(window "^$title")
activate "$main"
press alt+r s
answer_message 1 saved
until_true test -s "$drive/users/shplist.txt"
activate "$main"
press alt+r c
compare=$(window 'Compare with Shiplist')
activate "$compare"
click "$compare" 1000 850
press Return
text users
press Return
click "$compare" 3200 800
picture compare
click "$compare" 1200 3470
until_true test -s "$drive/Shiplist-compare.txt"
end

# Form3 is seen only while a job is long enough.
for ((i = 1000; i < 5000; ++i)); do echo "$i" >"$drive/many/f$i.txt"; done
wine "$programs/ostrane-dat.exe" build -q 'C:\many'
start 'C:\many'
extract_to many extract_many
until_true has_window 'File Extraction'
picture progress
answer_message 0 extracted_many
until_true cmp "$drive/many/f4999.txt" "$drive/out/many/F4999.TXT"
end
echo "The tour is complete; its pictures are in $pictures"
