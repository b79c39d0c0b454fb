#!/usr/bin/env bash
# check_screen_reader.sh BUILD: uses the window of a build as a client of a screen reader does.
set -euo pipefail
cd "$(dirname "$0")/.."
export QT_QPA_PLATFORM=xcb
exec dbus-run-session -- scripts/on_virtual_display.sh tests/desktop/screen_reader.py \
  "$1/bin/ostrane-dat-tool" "$1/sample"
