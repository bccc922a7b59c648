#!/usr/bin/env bash
# screenreader.sh [FOLDER]: opens the sample project on a virtual display as somebody with a screen reader would, prints
# what the program is made of and what it tells while the keyboard moves, and checks that. Pictures are kept in FOLDER
# (build/screenreader).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/common.sh

install_missing "${build_packages[@]}" xvfb openbox xdotool imagemagick python3 dbus at-spi2-core gir1.2-atspi-2.0 python3-gi
configure dev
say "Building the program"
quietly build/screenreader.log cmake --build --preset dev --target quenmora --parallel "$jobs"
say "Listening to it"
# Debian's own Python, which has the bindings
exec dbus-run-session -- /usr/bin/python3 tests/endtoend/screenreader.py build/dev/src/app/quenmora \
    "${1:-build/screenreader}"
