#!/usr/bin/env bash
# afternoon.sh [FOLDER]: works in the real program on a virtual display as one user would on an afternoon, from an
# empty project to exported files, and checks these. Pictures of every step are kept in FOLDER (build/afternoon).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/common.sh

install_missing "${build_packages[@]}" xvfb openbox xdotool imagemagick python3
configure dev
say "Building the program"
quietly build/afternoon.log cmake --build --preset dev --target quenmora --parallel "$jobs"
say "Working in it"
exec python3 tests/endtoend/afternoon.py build/dev/src/app/quenmora "${1:-build/afternoon}"
