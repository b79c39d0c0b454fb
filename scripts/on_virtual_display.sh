#!/usr/bin/env bash
# on_virtual_display.sh COMMAND...: runs the command on a virtual display with a window manager. Ends
# both afterwards.
set -euo pipefail

work=$(mktemp -d)
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work}  # else each program with Qt prints a warning
started=()
end_all() {
  [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
  wait
  rm -rf "$work"
}
trap end_all EXIT

wait_for() {
  for _ in $(seq 100); do
    "$@" && return
    sleep 0.1
  done
  echo "Timed out: $*" >&2
  return 1
}

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
started+=($!)
wait_for test -s "$work/display" || {
  cat "$work/xvfb.log" >&2
  exit 1
}
DISPLAY=:$(cat "$work/display")
export DISPLAY
unset WAYLAND_DISPLAY

openbox >"$work/openbox.log" 2>&1 &
started+=($!)
window_manager_is_up() { xdotool get_num_desktops >/dev/null 2>&1; }
wait_for window_manager_is_up

"$@"
