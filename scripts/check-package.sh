#!/usr/bin/env bash
# check-package.sh PACKAGE [PICTURE]: installs a Debian package of the editor on a bare Debian 12, exports the sample
# project, starts the editor without a display and on a virtual one (saving a picture of that), and takes the package off
# again; nothing may be left of it. Needs root and mmdebstrap, to which it passes MMDEBSTRAP_ARGUMENTS.
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

echo "==> Exporting the sample project"
for page in quenmora quenmora-export; do
    [[ -s $system/usr/share/man/man1/$page.1.gz ]] || fail "No manual page $page"
done
inside cp -r /usr/share/quenmora/examples /tmp/examples
inside quenmora-export --quiet /tmp/examples/sample.quenmora
again=$(inside quenmora-export /tmp/examples/sample.quenmora)
[[ $again =~ ^[0-9]+\ unchanged$ ]] || fail "Exporting again wrote: $again"
complete() { # the last word of a command line
    # shellcheck disable=SC2016 # it is for the shell inside
    inside bash -c 'source /usr/share/bash-completion/completions/quenmora-export
        compopt() { :; }
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        _quenmora_export
        printf "%s\n" "${COMPREPLY[@]}"' bash "$@"
}
[[ $(complete quenmora-export --for) == $'--format\n--formats' ]] || fail "Options are not completed"
[[ $(complete quenmora-export --format layer2-6) == layer2-640 ]] || fail "Forms are not completed"
[[ $(complete quenmora-export /tmp/examples/sample.quenmora --asset Hill) == "Hill Tiles" ]] ||
    fail "Assets are not completed"
# as the entry for file managers has it
thumbnailer=$(sed -n 's/^Exec=//p' "$system/usr/share/thumbnailers/quenmora.thumbnailer")
thumbnailer=${thumbnailer/\%o//tmp/thumbnail.png}
thumbnailer=${thumbnailer/\%s/128}
# shellcheck disable=SC2086 # words
inside ${thumbnailer/\%i//tmp/examples/sample.quenmora}
[[ $(head -c 4 "$system/tmp/thumbnail.png" | tail -c 3) == PNG ]] || fail "It makes no thumbnails"
apt install make binutils-z80
inside make --silent --directory=/tmp/examples/game
[[ -s $system/tmp/examples/game/game.nex ]] || fail "The example game was not built"

echo "==> Checking what catalogues of programs are told"
apt install appstream desktop-file-utils
inside appstreamcli validate --pedantic --no-net /usr/share/metainfo/example.quenmora.quenmora.metainfo.xml
inside desktop-file-validate /usr/share/applications/quenmora.desktop
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
