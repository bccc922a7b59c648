#!/usr/bin/env bash
# check-package.sh PACKAGE [PICTURE]: installs a Debian package of the editor on a bare Debian 12, starts it without
# a display and on a virtual one (saving a picture of that), and takes the package off again; nothing may be left of
# it. Needs root and mmdebstrap, to which it passes MMDEBSTRAP_ARGUMENTS.
set -euo pipefail
package=$1
picture=${2:-}
scripts=$(dirname "$(readlink -f "$0")")
[[ -f $package ]] || {
    echo "No package $package: cpack --preset release makes one" >&2
    exit 1
}

system=$(mktemp -d)
clean_up() {
    mountpoint --quiet "$system/proc" && umount "$system/proc"
    rm -rf --one-file-system "$system"
}
trap clean_up EXIT

inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        chroot "$system" "$@"
}
# apt COMMAND...: what it prints matters only when it fails
apt() {
    inside apt-get -qq --yes --no-install-recommends "$@" >"$system/tmp/apt.log" 2>&1 || {
        cat "$system/tmp/apt.log" >&2
        exit 1
    }
}
fail() {
    echo "$*" >&2
    exit 1
}

echo "==> Making a bare system"
# shellcheck disable=SC2086 # several arguments
mmdebstrap --quiet --variant=minbase ${MMDEBSTRAP_ARGUMENTS:-} bookworm "$system" >/dev/null
mount -t proc proc "$system/proc"
cp "$package" "$system/tmp/quenmora.deb"
cp "$scripts/screenshot.sh" "$system/tmp/"

echo "==> Installing the package"
apt update
apt install /tmp/quenmora.deb
inside dpkg --verify quenmora
documents=$system/usr/share/doc/quenmora
[[ -s $documents/guide/index.html ]] || fail "No guide: was cmark-gfm missing when the package was made?"
# shellcheck disable=SC2016 # dpkg's own variable
version=$(inside dpkg-query --show --showformat '${Version}' quenmora)
[[ $(zcat "$documents/changelog.gz") == "quenmora ($version) "* ]] || fail "The change log does not know $version"

echo "==> Starting the program with nothing but what the package brought along"
status=0
inside env QT_QPA_PLATFORM=offscreen timeout 5 quenmora || status=$?
((status == 124)) || fail "It ended with $status" # 124: it ran until it was stopped

echo "==> Starting it on a virtual display"
apt install xvfb xdotool imagemagick shared-mime-info
grep -qxF "50:application/x-quenmora:*.quenmora" "$system/usr/share/mime/globs2" || fail "Its files are not known"
inside /tmp/screenshot.sh quenmora /tmp/window.png
[[ -z $picture ]] || cp "$system/tmp/window.png" "$picture"

echo "==> Taking the package off"
apt purge quenmora
# the user's own settings stay
left=$(find "$system" -xdev -path "$system/root" -prune -o -path "$system/tmp" -prune -o -iname '*quenmora*' -print)
[[ -z $left ]] || fail "Left behind: $left"
! grep -q quenmora "$system/usr/share/mime/globs2" || fail "Its files are still known"
echo "==> The package installs, starts, and leaves nothing behind"
