#!/usr/bin/env bash
# keyboard-guide.sh [FOLDER]: does the first level of the guide in the real program on a virtual display with the keyboard
# alone, and checks the project that was saved and the files that were exported. Pictures of every step are kept in
# FOLDER (build/keyboard-guide).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/common.sh

install_missing "${build_packages[@]}" xvfb openbox xdotool imagemagick python3
configure dev
say "Building the program"
quietly build/keyboard-guide.log cmake --build --preset dev --target quenmora --parallel "$jobs"
say "Working in it"
exec python3 tests/endtoend/keyboardguide.py build/dev/src/app/quenmora "${1:-build/keyboard-guide}"
