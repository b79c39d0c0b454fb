#!/usr/bin/env bash
# take_screenshot.sh PROGRAM PICTURE: starts the tool, opens the archive in ~/ostrane-sample by mouse
# and keyboard, shows VISTA.SHP and writes a screenshot of the window. Needs a separate display with a
# window manager.
set -euo pipefail
program=$1
picture=$2

fail() {
  echo "No screenshot: $*" >&2
  exit 1
}

# Waits for a window with this title and prints its ID.
window() {
  for _ in $(seq 100); do
    xdotool search --onlyvisible --name "$1" 2>/dev/null && return
    kill -0 $tool 2>/dev/null || fail "the tool has ended"
    sleep 0.1
  done
  fail "the window \"$1\" did not appear"
}

is_gone() { ! xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }

# The position is relative to the top left corner of the client area.
click() {
  xdotool mousemove --sync --window "$1" "$2" "$3" click 1
  sleep 0.3
}

press() {
  xdotool key --delay 60 "$@"
  sleep 0.3
}

# A list searches for letters typed in quick succession.
pick_row() {
  xdotool type --delay 20 "$1"
  sleep 0.3
}

"$program" &
tool=$!
trap 'kill $tool 2>/dev/null || true' EXIT

main=$(window 'Ostrane.dat-tool')
xdotool windowactivate --sync "$main"
sleep 0.5
press alt+f
press o

chooser=$(window 'Select Ostrane.dat')
click "$chooser" 60 40
pick_row ostrane-sample
press Return
click "$chooser" 80 256
for _ in $(seq 50); do
  is_gone 'Select Ostrane.dat' && break
  sleep 0.1
done
is_gone 'Select Ostrane.dat' || fail "the archive was not read"

click "$main" 30 80
pick_row VISTA.SHP
xdotool mousemove 1 1

for _ in $(seq 20); do
  sleep 0.5
  import -frame -window "$main" "$picture"
  if [ "$(identify -format '%k' "$picture")" -gt 64 ]; then
    echo "Wrote a screenshot of the opened archive to $picture"
    exit
  fi
done
fail "$picture shows no icons"
