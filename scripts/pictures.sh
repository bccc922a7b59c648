#!/usr/bin/env bash
# Takes the pictures of the documentation again, from the program and the sample project.
#
#   scripts/pictures.sh          those that a page shows, into docs/images
#   scripts/pictures.sh FOLDER   one of every editor, menu and dialog, light and dark
set -euo pipefail
here=$PWD
cd "$(dirname "$0")/.."
. scripts/common.sh

install_missing "${build_packages[@]}"
configure dev
say "Building what takes the pictures"
cmake --build --preset dev --target takepictures >/dev/null
say "Taking the pictures"
take() {
    QT_QPA_PLATFORM=offscreen build/dev/docs/pictures/takepictures examples/sample.quenmora "$@"
}
if [ $# -gt 0 ]; then
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
