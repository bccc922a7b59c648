#!/usr/bin/env bash
# startup.sh PROGRAM [RUNS]: starts a program on a virtual display again and again, each time with a home
# folder of its own, and prints how long it takes until its window is on the screen: the median, the
# fastest and the slowest run after a first one that warms the caches, what of the median its own work takes
# (on a busy machine the rest is waiting), and the memory that it holds then.
# Needs xvfb and x11-utils.
set -euo pipefail
program=$(realpath "$1")
runs=${2:-15}

work=$(mktemp -d)
started=()
clean_up() {
    ((${#started[@]} == 0)) || kill "${started[@]}" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap clean_up EXIT

mkfifo "$work/number" "$work/events"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/number" 2>"$work/server.log" &
started+=($!)
read -r -t 30 number <"$work/number" || {
    cat "$work/server.log" >&2
    exit 1
}
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
xev -root -event substructure >"$work/events" &
started+=($!)
exec 4<"$work/events"

# started_in: microseconds from the start of the program to its window, nanoseconds that its main thread
# worked in this time, and its memory in KiB
started_in() {
    local home=$work/home-$1 from line to
    mkdir "$home"
    cd "$home"
    from=${EPOCHREALTIME/./}
    HOME=$home "$program" >/dev/null 2>&1 &
    local editor=$!
    while read -r -t 30 line <&4; do
        [[ $line == MapNotify* ]] && break
    done || {
        echo "$program showed no window" >&2
        kill "$editor" 2>/dev/null || true
        return 1
    }
    to=${EPOCHREALTIME/./}
    local work_time memory
    read -r work_time _ <"/proc/$editor/schedstat"
    sleep 0.5 # it paints
    memory=$(sed -n 's/^VmRSS:[[:space:]]*\([0-9]*\).*/\1/p' "/proc/$editor/status")
    kill "$editor"
    wait "$editor" 2>/dev/null || true
    echo "$((to - from)) $work_time $memory"
}

started_in 0 >/dev/null
for ((run = 1; run <= runs; ++run)); do
    started_in "$run"
done | sort -n | awk '
    { time[NR] = $1 / 1000; work[NR] = $2 / 1000000; memory[NR] = $3 / 1024 }
    END {
        median = int((NR + 1) / 2)
        printf "window after %.0f ms (%.0f to %.0f), %.0f ms of work, %.0f MiB resident\n",
            time[median], time[1], time[NR], work[median], memory[median]
    }'
