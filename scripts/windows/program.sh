# shellcheck shell=bash disable=SC2154
# The program for Windows, its zip and its tests. Sourced by scripts/windows.sh after libraries.sh.

build=$work/program

# The version is part of the zip's name.
version=$(sed -n 's/^project(Quenmora VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
name=quenmora-$version-windows
zip=$work/$name.zip

configure_program() {
    for_windows -S "$top" -B "$build" "-DWINDOWS_LICENCES=$work/licences" \
        -DCMAKE_CROSSCOMPILING_EMULATOR="$top/scripts/windows/run-test.sh"
}

build_program() { ninja -C "$build" -j"$jobs" quenmora quenmora-export; }

pack_program() {
    rm -rf "$work/package" "$zip"
    cmake --install "$build" --prefix "$work/package/$name"
    find "$work/package/$name" \( -name '*.exe' -o -name '*.dll' \) -exec "$compiler-strip" --strip-unneeded {} +
    (cd "$work/package" && find "$name" -type f | LC_ALL=C sort | zip -q -X -9 "$zip" -@)
}

# What something in the zip loads is in the zip, or belongs to Windows: the compiler can link with it.
check_package() {
    local file library
    find "$work/package/$name" -name '*.exe' -o -name '*.dll' | while read -r file; do
        "$compiler-objdump" -p "$file" | sed -n 's/.*DLL Name: //p' | while read -r library; do
            [[ -e $work/package/$name/$library ]] || is_of_windows "$library" || echo "$file needs $library"
        done
    done | tee "$work/missing"
    [[ ! -s $work/missing ]]
}

is_of_windows() {
    local plain=${1,,}
    plain=${plain%.dll}
    [[ $plain == api-ms-win-* ]] || compgen -G "/usr/$compiler/lib/lib${plain%.drv}.a" >/dev/null
}

program() {
    once "Configuring the program" "$(how configure_program; echo "$top"; cat "$work/done/build_svg")" configure_program
    step "Building the program ($jobs jobs)" build_program
    step "Packing" pack_program
    step "Looking whether all libraries are there" check_package
    say "$zip: $(du -h "$zip" | cut -f1), unpacked $(du -sh "$work/package/$name" | cut -f1)"
}

build_tests() { ninja -C "$build" -j"$jobs"; }

# run_tests [NAME...]: under Wine, with a profile that belongs to this build; Wine's server outlives the programs for a
# moment, so it starts before them.
run_tests() {
    once "Configuring the program" "$(how configure_program; echo "$top"; cat "$work/done/build_svg")" configure_program
    step "Building the tests ($jobs jobs)" build_tests
    export WINEPREFIX=$work/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
    WINEPATH="$(windows_path "$prefix/bin");$(windows_path "$(dirname "$("$compiler-g++-posix" \
        -print-file-name=libstdc++-6.dll)")");$(windows_path "/usr/$compiler/lib")"
    export WINEPATH
    step "Starting Wine" start_wine
    local pattern result=0
    pattern=$(IFS='|'; echo "${*:-.}")
    ctest --test-dir "$build" --parallel "$jobs" --output-on-failure -R "$pattern" || result=$?
    count_tests | tee "$work/tests.txt"
    step "Comparing with what Linux makes" same_as_on_linux
    # each test has a folder for its home; what lies elsewhere went to the profile of a person
    local stray
    stray=$(find "$WINEPREFIX/drive_c/users" -path '*/Temp' -prune -o -iname '*quenmora*' -print)
    [[ -z $stray ]] || fail "A test wrote into the profile: $stray"
    wineserver -k || true
    return $result
}

# What each program's totals say, and their sum.
count_tests() {
    awk '$2 == "Testing:" { name = $3 }
        $1 == "Totals:" { print name ": " $2 " passed, " $4 " failed, " $6 " skipped"; p += $2; f += $4; s += $6; ++n }
        END { print n " programs: " p " passed, " f " failed, " s " skipped" }' \
        <(tr -d '\r' <"$build/Testing/Temporary/LastTest.log")
}

# The sample project, made from its pictures under Wine, has the members that it has in the tree, which Linux made; what
# holds the same already is left alone.
same_as_on_linux() {
    local folder=$work/compared
    rm -rf "$folder"
    mkdir -p "$folder"
    ninja -C "$build" -j"$jobs" makesample
    cp "$top/examples/sample.quenmora" "$folder/kept.quenmora"
    touch -d 2001-02-03 "$folder/kept.quenmora"
    local name
    for name in kept made; do
        wine "$build/examples/makesample.exe" "$(windows_path "$top/examples/pictures")" \
            "$(windows_path "$folder/$name.quenmora")"
    done
    [[ $(date -r "$folder/kept.quenmora" +%Y) == 2001 ]]
    unzip -q "$folder/made.quenmora" -d "$folder/windows"
    unzip -q "$top/examples/sample.quenmora" -d "$folder/linux"
    diff -r "$folder/windows" "$folder/linux"
}

start_wine() { wineboot --init; }

# windows_path PATH: as programs under Wine see it.
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
