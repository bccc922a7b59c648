#!/usr/bin/env bash
# Takes the pictures of the documentation again, from the program and the sample project.
#
#   scripts/pictures.sh          those that a page shows, into docs/images
#   scripts/pictures.sh FOLDER   one of every editor, menu and dialog, light and dark
#   scripts/pictures.sh --desktops FOLDER
#       these in English on a small screen, at scale 2, in the dark and with large letters, in a folder for each; says
#       what is cut, or has no room on the screen
set -euo pipefail
here=$PWD
cd "$(dirname "$0")/.."
. scripts/common.sh

install_missing "${build_packages[@]}"
configure dev
say "Building what takes the pictures"
cmake --build --preset dev --target takepictures tst_languages >/dev/null
say "Taking the pictures"

# screen NAME WIDTH HEIGHT: the platform that has such a screen
screen() {
    local file=build/screen-$1.json
    printf '{"screens": [{"name": "%s", "x": 0, "y": 0, "width": %d, "height": %d, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}' \
        "$@" >"$file"
    echo "offscreen:configfile=$file"
}

take() {
    local -x QT_QPA_PLATFORM
    QT_QPA_PLATFORM=$(screen usual 1920 1080)
    build/dev/docs/pictures/takepictures examples/sample.quenmora "$@"
}

# on_desktop NAME WIDTH HEIGHT VARIABLE=VALUE...: all pictures on a screen of that size
on_desktop() {
    local name=$1 width=$2 height=$3 pictures=$folder/$1
    shift 3
    say "$name: $width x $height $*"
    mkdir -p "$pictures/dialogs"
    local -x QT_QPA_PLATFORM
    QT_QPA_PLATFORM=$(screen "$name" "$width" "$height")
    env "$@" build/dev/docs/pictures/takepictures examples/sample.quenmora "$pictures" light
    env "$@" QUENMORA_LANGUAGE=en QUENMORA_PICTURES="$pictures/dialogs" build/dev/tests/tst_languages -maxwarnings 0 \
        >"$pictures/log.txt" 2>&1 || grep -oE 'cut: .*' "$pictures/log.txt" || cat "$pictures/log.txt"
}

if [[ ${1:-} == --desktops ]]; then
    folder=$(realpath -m "$here/$2")
    [[ $2 == /* ]] && folder=$2
    on_desktop small 800 600
    on_desktop double 1920 1080 QT_SCALE_FACTOR=2
    on_desktop dark 1920 1080 QUENMORA_DARK=1
    on_desktop letters 1366 768 QUENMORA_LETTERS=14
elif [ $# -gt 0 ]; then
    folder=$(realpath -m "$here/$1")
    [[ $1 == /* ]] && folder=$1
    take "$folder" light
    take "$folder" dark
else
    folder=docs/images
    mapfile -t shown < <(grep -oh 'images/[a-z-]*\.png' README.md docs/*.md docs/guide/*.md | sed 's#.*/##; s#\.png##' |
        sort -u)
    take "$folder" light "${shown[@]}"
    take "$folder" dark "${shown[@]}"
fi
say "They are in $folder"
