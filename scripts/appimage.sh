#!/usr/bin/env bash
# appimage.sh [FOLDER]: gathers the editor, quenmora-export and the libraries that they need in one folder (build/AppDir)
# that runs wherever it lies, on distributions no older than the one that it was made on. FOLDER/AppRun starts the
# editor. Where there is appimagetool, which Debian does not package, it makes an AppImage of the folder beside it;
# nothing is downloaded for that.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/common.sh
folder=$(realpath -m "${1:-build/AppDir}")

# What comes from the system all the same: C and C++ libraries, graphics drivers and what talks to them, fonts.
system_libraries='^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|stdc\+\+|gcc_s|GL|GLX|EGL|OpenGL|GLdispatch|gbm|drm|X11|X11-xcb|xcb|wayland-.*|fontconfig|freetype|expat|z|asound))\.so'

install_missing "${build_packages[@]}" patchelf cmark-gfm
configure release -DQUENMORA_BENCHMARKS=OFF
say "Building the editor ($jobs jobs)"
quietly build/appimage.log cmake --build --preset release --parallel "$jobs" --target quenmora quenmora-export
say "Gathering $folder"
rm -rf "$folder"
quietly build/appimage.log cmake --install build/release --strip --prefix "$folder/usr"

# needed FILE...: where the libraries are that these need, and theirs in turn
needed() {
    ldd "$@" | sed -n 's/^\t\([^ ]*\) => \(.*\) (0x.*/\1 \2/p; s/^\t\([^ ]*\) => not found.*/\1 missing/p' | sort -u |
        while read -r name place; do
            [[ $name =~ $system_libraries ]] && continue
            [[ $place != missing ]] || fail "$name is missing"
            echo "$place"
        done
}

qmake=$(command -v qmake6 || command -v qmake)
plugins=$("$qmake" -query QT_INSTALL_PLUGINS)
for kind in platforms platformthemes imageformats iconengines xcbglintegrations tls wayland-shell-integration \
    wayland-decoration-client wayland-graphics-integration-client; do
    for plugin in "$plugins/$kind"/*.so; do
        case ${plugin##*/} in
        libqxcb.so | libqwayland-generic.so | libqoffscreen.so | libqgif.so | libqico.so | libqjpeg.so | libqsvg.so | \
            libqsvgicon.so | libqxdgdesktopportal.so | libqxcb-glx-integration.so | libqxcb-egl-integration.so | \
            libqopensslbackend.so | libxdg-shell.so | libbradient.so)
            install -D --mode=644 "$plugin" "$folder/usr/plugins/$kind/${plugin##*/}"
            ;;
        esac
    done
done
mapfile -t programs < <(find "$folder/usr/bin" -type f)
mapfile -t parts < <(find "$folder/usr/plugins" -type f)
list=build/appimage.libraries
needed "${programs[@]}" "${parts[@]}" >"$list"
# Qt loads these two when the check for newer releases asks for them
/sbin/ldconfig -p | awk '$1 ~ /^lib(ssl|crypto)\.so\.3$/ && !seen[$1]++ { print $NF }' >>"$list"
mapfile -t libraries <"$list"
install -D --mode=644 --target-directory="$folder/usr/lib" "${libraries[@]}"
strip --strip-unneeded "${parts[@]}" "$folder"/usr/lib/*.so*
# they look for each other in the folder, wherever that lies; the programs that they start are left alone
# shellcheck disable=SC2016 # for the loader
{
    patchelf --set-rpath '$ORIGIN/../lib' "${programs[@]}"
    patchelf --set-rpath '$ORIGIN/../../lib' "${parts[@]}"
    patchelf --set-rpath '$ORIGIN' "$folder"/usr/lib/*.so*
}
# the standard buttons in people's languages
translations=$("$qmake" -query QT_INSTALL_TRANSLATIONS)
if compgen -G "$translations/qtbase_*.qm" >/dev/null; then
    install -D --mode=644 --target-directory="$folder/usr/translations" "$translations"/qtbase_*.qm
fi
printf '[Paths]\nPrefix = ..\nPlugins = plugins\nTranslations = translations\n' >"$folder/usr/bin/qt.conf"

cp packaging/quenmora.desktop "$folder/"
cp packaging/icons/quenmora-256.png "$folder/quenmora.png"
ln -s quenmora.png "$folder/.DirIcon"
cat >"$folder/AppRun" <<'END'
#!/bin/sh
# Starts the editor, or quenmora-export when it is called by that name or that is the first word.
here=$(dirname "$(readlink -f "$0")")
case $(basename "${ARGV0:-$0}"),$1 in
quenmora-export,*) exec "$here/usr/bin/quenmora-export" "$@" ;;
*,quenmora-export) shift && exec "$here/usr/bin/quenmora-export" "$@" ;;
esac
exec "$here/usr/bin/quenmora" "$@"
END
chmod +x "$folder/AppRun"

say "$(du -sh "$folder" | cut -f1) in $folder; AppRun starts the editor"
if command -v appimagetool >/dev/null; then
    image=$(dirname "$folder")/quenmora-$(uname -m).AppImage
    quietly build/appimage.log appimagetool "$folder" "$image"
    say "An AppImage of it: $image"
else
    say "There is no appimagetool here, so the folder is not packed into an AppImage"
fi
