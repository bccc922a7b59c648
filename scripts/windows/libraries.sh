# shellcheck shell=bash disable=SC2034,SC2154
# The compiler, and the libraries of the Windows build. Sourced by scripts/windows.sh, which sets $work (the folder for all
# that is made), $top (the source tree) and $jobs, and has step().

# The host's Qt brings the programs that run while Qt itself and the editor are built. cmark-gfm makes the guide.
windows_packages=(g++-mingw-w64-x86-64-posix cmake ninja-build pkg-config dpkg-dev xz-utils bzip2 ca-certificates
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools qt6-translations-l10n cmark-gfm zip)

compiler=x86_64-w64-mingw32
prefix=$work/prefix

# fetch PACKAGE: the sources of a Debian package, unpacked in $work/sources, from the places that the machine takes its
# packages from anyway; its settings stay as they are.
fetch() {
    local options=(-o Dir::Etc::sourcelist="$work/apt/sources.list" -o Dir::Etc::sourceparts="$work/apt/parts"
        -o Dir::State::lists="$work/apt/lists" -o APT::Sandbox::User="$(id -un)")
    if [[ ! -e $work/apt/updated ]]; then
        mkdir -p "$work/apt/parts" "$work/apt/lists/partial"
        local list
        for list in /etc/apt/sources.list.d/*.sources; do
            [[ -e $list ]] && sed 's/^Types:.*/Types: deb-src/; /^#/d' "$list" >"$work/apt/parts/${list##*/}"
        done
        sed -sn 's/^deb /deb-src /p' /etc/apt/sources.list /etc/apt/sources.list.d/*.list \
            >"$work/apt/sources.list" 2>/dev/null || true
        apt-get -q "${options[@]}" update || true # places of others may have no sources
        touch "$work/apt/updated"
    fi
    (cd "$work/sources" && apt-get -q "${options[@]}" source --only-source "$1")
}

# sources PACKAGE: the folder of its unpacked sources.
sources() { echo "$work/sources/$1"-*/; }

# static_library NAME FLAGS FILE...: compiles C files into $prefix/lib/libNAME.a.
static_library() {
    local name=$1 flags=$2 objects=$work/objects/$1 file
    shift 2
    rm -rf "$objects" "$prefix/lib/lib$name.a"
    mkdir -p "$objects" "$prefix"/{bin,lib/pkgconfig,include/minizip}
    # shellcheck disable=SC2086
    for file in "$@"; do
        "$compiler-gcc-posix" -O2 -w $flags -c "$file" -o "$objects/$(basename "$file").o"
    done
    "$compiler-ar" rcs "$prefix/lib/lib$name.a" "$objects"/*.o
}

# describe PKG NAME PACKAGE: writes what pkg-config says about a static library.
describe() {
    local version
    version=$(dpkg-parsechangelog -l "$(sources "$3")debian/changelog" -S Version)
    printf '%s\n' "prefix=$prefix" "Name: $1" "Description: $1 for Windows" "Version: ${version%%[-+]*}" \
        "Cflags: -I\${prefix}/include" "Libs: -L\${prefix}/lib $2" >"$prefix/lib/pkgconfig/$1.pc"
}

# Small ones under permissive licences, linked into the programs.
build_small_libraries() {
    local from
    from=$(sources zlib)
    static_library z "-I$from" "$from"*.c
    cp "$from"{zlib,zconf}.h "$prefix/include/"
    describe zlib -lz zlib
    static_library minizip "-I$from" "$from"contrib/minizip/{zip,unzip,ioapi,iowin32}.c
    cp "$from"contrib/minizip/{zip,unzip,ioapi,iowin32}.h "$prefix/include/minizip/"
    describe minizip "-lminizip -lz" zlib

    from=$(sources libdeflate)
    static_library deflate "-I$from" "$from"lib/*.c "$from"lib/x86/cpu_features.c
    cp "$from"libdeflate.h "$prefix/include/"
    describe libdeflate -ldeflate libdeflate

    from=$(sources xxhash)
    static_library xxhash -O3 "$from"xxhash.c
    cp "$from"{xxhash,xxh3}.h "$prefix/include/"
    describe libxxhash -lxxhash xxhash

    from=$(sources libzstd)
    static_library zstd "-I${from}lib -DZSTD_DISABLE_ASM" "$from"lib/{common,compress,decompress}/*.c
    cp "$from"lib/zstd{,_errors}.h "$prefix/include/"
    describe libzstd -lzstd libzstd
}

# for_windows ARGUMENT...: cmake, configuring for Windows with what has been made so far.
for_windows() {
    PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig cmake -G Ninja -DCMAKE_BUILD_TYPE=Release \
        "-DCMAKE_TOOLCHAIN_FILE=$top/cmake/Mingw.cmake" "-DWINDOWS_PREFIX=$prefix" "-DCMAKE_PREFIX_PATH=$prefix" \
        "-DCMAKE_INSTALL_PREFIX=$prefix" -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake "$@"
}

# Core, Gui, Widgets, Network and Test as shared libraries. Direct2D without its version 1.1 is what makes DirectWrite
# link with the headers of mingw-w64 10; the headers of pen tablets are not in Debian's sources.
build_qt() {
    for_windows -S "$(sources qt6-base)" -B "$work/objects/qtbase" -DBUILD_SHARED_LIBS=ON \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DFEATURE_pkg_config=OFF -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_dbus=OFF -DFEATURE_sql=OFF \
        -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_printsupport=OFF -DFEATURE_tabletevent=OFF \
        -DFEATURE_direct2d=ON -DFEATURE_direct2d1_1=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF \
        -DFEATURE_brotli=OFF -DINPUT_openssl=no -DFEATURE_schannel=ON -DFEATURE_androiddeployqt=OFF \
        -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF \
        -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF \
        -DFEATURE_system_libb2=OFF -DFEATURE_system_textmarkdownreader=OFF
    ninja -C "$work/objects/qtbase" -j"$jobs"
    cmake --install "$work/objects/qtbase"
}

# The renderer of Qt 6 where its sources could be had, else that of Qt 5.15 for Qt 6.
build_svg() {
    local from=$work/objects/svg-sources
    rm -rf "$from" "$work/objects/svg"
    if [[ -e $work/sources/qt6-svg.whole ]]; then
        from=$(sources qt6-svg)
    else
        "$top/scripts/windows/svg/prepare.sh" "$(sources qtsvg-opensource-src)" "$from"
    fi
    for_windows -S "$from" -B "$work/objects/svg" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
    ninja -C "$work/objects/svg" -j"$jobs" install
}

fetch_sources() {
    local package
    mkdir -p "$work/sources"
    for package in qt6-base zlib libdeflate xxhash libzstd; do
        fetch "$package"
    done
    # some mirrors list it and do not have it
    if fetch qt6-svg; then
        touch "$work/sources/qt6-svg.whole"
    else
        rm -rf "$work"/sources/qt6-svg*
        fetch qtsvg-opensource-src
    fi
}

# The texts of the licences under which the zip's libraries are, and what they were built from and how.
gather_licences() {
    local to=$work/licences package
    rm -rf "$to"
    mkdir -p "$to/qt" "$to/how-the-libraries-were-built"
    cp "$(sources qt6-base)"LICENSES/{LGPL-3.0-only,GPL-3.0-only}.txt "$to/qt/"
    {
        echo "Sources of the libraries beside the program: Debian's source packages"
        echo
        for package in qt6-base qt6-svg qtsvg-opensource-src zlib libdeflate xxhash libzstd; do
            compgen -G "$work/sources/$package-*/debian" >/dev/null || continue
            cp "$(sources "$package")debian/copyright" "$to/$package.txt"
            dpkg-parsechangelog -l "$(sources "$package")debian/changelog" | sed -n 's/^Source: //p; s/^Version: /    /p'
        done
        echo
        echo "They can be had from Debian's archive, by \"apt-get source\" on a Debian system or from its web site. The"
        echo "folder how-the-libraries-were-built has the script that compiles them, and the changes to the SVG renderer."
        echo "libgcc, libstdc++ and libwinpthread come as they are from Debian's packages of the mingw-w64 compiler."
    } >"$to/sources.txt"
    cp -r "$top"/scripts/windows/{libraries.sh,svg} "$top/cmake/Mingw.cmake" "$to/how-the-libraries-were-built/"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$to/gcc.txt"
    cp /usr/share/doc/mingw-w64-common/copyright "$to/mingw-w64.txt"
    cp /usr/share/common-licenses/GPL-3 "$to/GPL-3.txt"
}
