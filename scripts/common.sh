# shellcheck shell=bash disable=SC2034
# What ./run and ./test share: installing what is missing, and building a preset.
# Sourced by bash, from the top folder of the source tree.

# Everything that builds and starts the program (names of Debian 12).
build_packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev qt6-l10n-tools qt6-translations-l10n libgl1-mesa-dev
    libminizip-dev zlib1g-dev libdeflate-dev libxxhash-dev libzstd-dev fonts-dejavu-core)

# The assemblers to which tests give the source text that is written for them, and what builds the example game.
test_packages=(z80asm binutils-z80 make)

jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '==> %s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# quietly LOG COMMAND...: keeps what the command prints in a file, and shows it when the command fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 </dev/null || {
        cat "$log" >&2
        exit 1
    }
}

# install_missing PACKAGE...: one call of apt, and none when all packages are there.
install_missing() {
    # elsewhere than on Debian and its relatives, the build says what it lacks
    command -v dpkg-query >/dev/null || return 0

    local installed missing=() package
    installed=$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) || true
    for package in "$@"; do
        grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "Missing: ${missing[*]}. Install with apt-get as root, then start again."
        as_root=(sudo)
        sudo -v || exit 1 # asks for the password before the output goes to a file
    fi
    say "Installing ${missing[*]}"
    # a fresh machine may be busy with its own updates: wait for them
    quietly build/install.log "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive sh -c \
        'apt-get -q update && apt-get -q -o DPkg::Lock::Timeout=600 install --yes --no-install-recommends "$@"' \
        sh "${missing[@]}"
}

# configure PRESET [OPTION...]: only when the preset was not configured yet, or has changed since;
# otherwise the build itself notices what is new.
configure() {
    local preset=$1
    shift
    [[ build/$preset/build.ninja -nt CMakePresets.json ]] && return
    say "Configuring the $preset build"
    quietly "build/configure-$preset.log" cmake --preset "$preset" "$@"
}
