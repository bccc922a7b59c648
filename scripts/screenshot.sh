#!/usr/bin/env bash
# screenshot.sh PROGRAM PICTURE [COMMAND...]: starts a program on a virtual display, runs commands of the editor as a
# person would who types their names into its palette of commands, saves a picture of the display, and ends both. With
# commands it waits until something moves in the picture, and fails when nothing does. Needs xvfb, xdotool and
# imagemagick.
set -euo pipefail
program=$1
picture=$2
commands=("${@:3}")

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
fail() {
    cat "$work/program.log" >&2
    echo "$*" >&2
    exit 1
}

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

"$program" >"$work/program.log" 2>&1 &
editor=$!
started=("$editor" "${started[@]}") # it ends before its display does

# soon COMMAND...: tries it until it succeeds; the editor must not end by then
soon() {
    local attempt
    for ((attempt = 0; attempt < 100; ++attempt)); do
        kill -0 "$editor" 2>/dev/null || fail "$program ended"
        "$@" && return
        sleep 0.2
    done
    return 1
}
window() {
    window=$(xdotool search --onlyvisible --class "$(basename "$program")" 2>/dev/null | tail -1) && [[ -n $window ]]
}
# what the display shows, as a number
pixels() {
    import -window root png:- | identify -format '%#' -
}
has_changed() {
    [[ $(pixels) != "$shown" ]]
}
is_still() {
    local before=$shown
    shown=$(pixels)
    [[ $shown == "$before" ]]
}

soon window || fail "$program showed no window"
sleep 1 # until it is painted
if ((${#commands[@]})); then
    # fills the display, as a window manager would let it
    xdotool windowmove "$window" 0 0 windowsize "$window" 1280 800 windowfocus --sync "$window"
    for command in "${commands[@]}"; do
        shown=
        soon is_still || true
        xdotool key ctrl+shift+p
        soon has_changed || fail "There is no palette of commands"
        xdotool type --delay 20 "$command"
        xdotool key Return # it comes after the letters, however slow the editor is
    done
    sleep 1
    shown=$(pixels)
    soon has_changed || fail "Nothing moves"
fi
import -window root "$picture"
