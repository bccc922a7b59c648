#!/usr/bin/env bash
# windows.sh                 makes the zip of the program for 64-bit Windows
# windows.sh test [NAME...]  builds the tests for Windows and runs them under Wine: all, or those with NAME in their name
# windows.sh window          works in the zip's program under Wine, on a virtual display, and compares what it saves
# windows.sh libraries       makes only what the program needs
#
# For Debian 12. Installs the packages that it needs, takes the sources of the libraries from Debian's source packages,
# and keeps all that it makes in QUENMORA_WINDOWS (~/.cache/quenmora-windows): what is there and still right is used again.
# JOBS is the number of jobs (those of the machine). docs/windows.md tells more.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$top"
source scripts/common.sh
jobs=${JOBS:-$jobs}
work=${QUENMORA_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/quenmora-windows}
mkdir -p "$work"/{logs,done,objects,sources}
work=$(cd "$work" && pwd)
source scripts/windows/libraries.sh
source scripts/windows/program.sh

# step TEXT COMMAND...: what it does, and how long it took; its output goes to a file, which is shown when it fails.
step() {
    local text=$1 start=$SECONDS log
    log=$work/logs/$2.log
    shift
    say "$text"
    # not within a condition, where the shell would go on after errors
    set +e
    (set -e; "$@") >"$log" 2>&1 </dev/null
    local result=$?
    set -e
    if ((result)); then
        tail -n 60 "$log" >&2
        fail "Failed after $((SECONDS - start)) s; all of it is in $log"
    fi
    printf '    %d s\n' $((SECONDS - start))
}

# once TEXT KEY COMMAND...: the same, unless it was done before with that key.
once() {
    local text=$1 key=$2 mark=$work/done/$3
    shift 2
    [[ -e $mark && $(<"$mark") == "$key" ]] && return
    rm -f "$mark"
    step "$text" "$@"
    printf '%s\n' "$key" >"$mark"
}

# how NAME...: a key that changes when one of these functions is written anew.
how() { declare -f "$@" | sha256sum; }

libraries() {
    install_missing "${windows_packages[@]}"
    once "Getting the sources" "$(how fetch fetch_sources)" fetch_sources
    once "Building zlib, minizip, libdeflate, xxHash and zstd" \
        "$(how static_library describe build_small_libraries; cat "$work/done/fetch_sources")" build_small_libraries
    once "Building Qt ($jobs jobs; this takes longest)" \
        "$(how for_windows build_qt; cat cmake/Mingw.cmake "$work/done/fetch_sources")" build_qt
    once "Building the SVG renderer" "$(how build_svg; cat scripts/windows/svg/* "$work/done/build_qt")" build_svg
    once "Gathering licences" "$(how gather_licences; cat "$work/done/build_svg")" gather_licences
}

case ${1:-zip} in
libraries)
    libraries
    ;;
zip)
    libraries
    program
    ;;
test)
    install_missing wine wine64 unzip
    libraries
    run_tests "${@:2}"
    ;;
window)
    install_missing wine wine64 fonts-wine xvfb openbox xdotool imagemagick python3
    libraries
    program
    say "Working in the window under Wine"
    PYTHONDONTWRITEBYTECODE=1 python3 tests/endtoend/underwine.py "$zip" "$top/examples" "$work/window"
    ;;
*)
    sed -n '2,/^[^#]/ s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
say "Took $SECONDS s"
