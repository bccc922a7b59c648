#!/usr/bin/env bash
# kill-recovery.sh [TIMES [SEED]]: kills the editor at random moments, while somebody works in it and saves a large
# project, and checks each time that nothing is lost but the work since the last recovery copy. 200 times take twenty
# minutes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/common.sh

install_missing "${build_packages[@]}" python3
configure dev
say "Building the driver"
quietly build/kill-recovery.log cmake --build --preset dev --target recoverydriver --parallel "$jobs"
say "Killing it"
exec python3 tests/endtoend/killrecovery.py build/dev/tests/recoverydriver build/kill-recovery "${@:-200}"
