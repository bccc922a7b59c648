#!/usr/bin/env bash
# screenshot.sh PROGRAM PICTURE: starts a program on a virtual display, saves a picture of that display once
# the program shows a window, and ends both. Needs xvfb, xdotool and imagemagick.
set -euo pipefail
program=$1
picture=$2

started=()
work=$(mktemp -d)
clean_up() {
    local process
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap clean_up EXIT

# the server picks a free display number and writes it down when it is ready
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/number" 2>"$work/server.log" &
started+=($!)
read -r -t 30 number <"$work/number" || {
    cat "$work/server.log" >&2
    exit 1
}
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

"$program" &
editor=$!
started=("$editor" "${started[@]}") # it ends before its display does
for ((attempt = 0; attempt < 100; ++attempt)); do
    kill -0 "$editor" 2>/dev/null || {
        echo "$program ended before it showed a window" >&2
        exit 1
    }
    xdotool search --onlyvisible --class "$(basename "$program")" >/dev/null 2>&1 && break
    sleep 0.2
done
((attempt < 100)) || {
    echo "$program showed no window" >&2
    exit 1
}
sleep 1 # until it is painted
import -window root "$picture"
