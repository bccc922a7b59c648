#!/usr/bin/env bash
# Takes the pictures of the documentation again (docs/images), from the program and the sample project.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

install_missing "${build_packages[@]}"
configure dev
say "Building what takes the pictures"
cmake --build --preset dev --target takepictures >/dev/null
say "Taking the pictures"
for theme in "" dark; do
    QT_QPA_PLATFORM=offscreen build/dev/docs/pictures/takepictures examples/sample.quenmora docs/images $theme
done
say "They are in docs/images"
