#!/usr/bin/env bash
# Windows on x86-64: the DLL and its tests built with MinGW-w64, the tests run under Wine.
set -euo pipefail
readonly platform=windows
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

readonly here=$work_dir/windows
export OX_WINDOWS_PREFIX=$here/prefix
export OX_WINE=/usr/lib/wine/wine64
export WINEPREFIX=$here/wine WINEDEBUG=-all
toolchain=$PWD/packaging/platforms/windows-toolchain.cmake

# Debian has none of the libraries for Windows: they are built from its source packages, static.
build_dependencies() {
    [ ! -f "$OX_WINDOWS_PREFIX/lib/libgmock.a" ] || return 0
    mkdir -p "$here/sources" "$OX_WINDOWS_PREFIX/include"
    fetch_source libpolyclipping
    build_dependency "$(echo "$here"/sources/libpolyclipping-*/cpp)" polyclipping
    fetch_source libglu --tar-only # Debian's changes are for its own build
    tar -xf "$(echo "$here"/sources/libglu_*.orig.tar.*)" -C "$here/sources"
    build_tessellator "$(echo "$here"/sources/*glu-*/)"
    build_dependency /usr/src/googletest googletest
    cp -r /usr/include/utf8cpp "$OX_WINDOWS_PREFIX/include" # headers only
}

# `fetch_source NAME OPTION...`: a Debian source package, unpacked unless an option says otherwise,
# without a change to this machine's lists.
fetch_source() {
    local lists=$here/lists
    mkdir -p "$lists/partial"
    . /etc/os-release
    echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]" \
        "$(packaging/archive_address.sh) $VERSION_CODENAME main" >"$here/sources.list"
    local options=(-qq -o "Dir::Etc::SourceList=$here/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$lists")
    apt-get "${options[@]}" update
    (cd "$here/sources" && apt-get "${options[@]}" source "$@")
}

# The tessellator of GLU instead of the system's: `build_tessellator SOURCES`. It sorts points by random
# pivots of the width of a long, which is half as wide on Windows: points at one place then come in
# another order, and polygons are cut into other triangles than elsewhere.
build_tessellator() {
    sed -i 's/unsigned long seed/unsigned long long seed/' "$1/src/libtess/priorityq.c"
    build_dependency packaging/platforms/tessellator tessellator -DGLU_SOURCE="$1"
}

# `build_dependency SOURCES NAME OPTION...`
build_dependency() {
    cmake -S "$1" -B "$here/$2" "${@:3}" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_LIBDIR=lib \
        -DCMAKE_INSTALL_PREFIX="$OX_WINDOWS_PREFIX" -Wno-dev
    cmake --build "$here/$2"
    cmake --install "$here/$2"
}

build_library() {
    cmake -S . -B "$here/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS=-Werror -DOX_BUILD_EXAMPLES=OFF \
        -DOPENGL_glu_LIBRARY="$OX_WINDOWS_PREFIX/lib/libtessellator.a" \
        -DCMAKE_RUNTIME_OUTPUT_DIRECTORY="$here/build/bin" \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST -Wno-dev
    take_runtime_along "$here/build/bin"
    cmake --build "$here/build"
}

# The DLLs of the compiler that a program needs beside it: `take_runtime_along FOLDER`.
take_runtime_along() {
    mkdir -p "$1"
    local dll
    for dll in libgcc_s_seh-1.dll libstdc++-6.dll libgomp-1.dll libwinpthread-1.dll; do
        cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$dll)" "$1"
    done
}

# The installed tree serves a program that is built elsewhere: the import library links, the DLL loads.
run_consumer() {
    rm -rf "$here/installed" "$here/consumer"
    cmake --install "$here/build" --prefix "$here/installed"
    take_runtime_along "$here/installed/bin"
    cmake -S tests/packaging/consumer -B "$here/consumer" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
        -Dox_utilities_DIR="$here/installed/lib/cmake/ox_utilities" \
        -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH
    cmake --build "$here/consumer"
    local folder=Z:$here/installed/bin
    WINEPATH=${folder//\//\\} "$OX_WINE" "$(find "$here/consumer" -maxdepth 1 -name '*.exe')"
}

# One process a program: Wine takes longer to begin one than most tests take. What each prints is kept.
run_tests() {
    "$(dirname "$OX_WINE")/wineserver" --persistent=60 || true # programs start faster under one server
    local program
    for program in "$here"/build/bin/ox_*_tests.exe; do
        (mkdir -p "$here/tests" && cd "$here/tests" && timeout 1800 "$OX_WINE" "$program") ||
            echo "$(basename "$program") ended with $?"
    done
    (cd "$here/build" && ctest --output-on-failure --tests-regex '^(bits|fuzz)\.')
}

# `count_cases LOG`: "PASSED of ALL" from what GoogleTest and CTest told.
count_cases() {
    local passed begun
    passed=$(grep -c -E '^\[ +OK \]|^ *[0-9]+/[0-9]+ Test .* Passed ' "$1" || true)
    begun=$(grep -c -E '^\[ RUN +\]|^ *[0-9]+/[0-9]+ Test ' "$1" || true)
    echo "$passed of $((begun - $(grep -c -E '^\[  SKIPPED \].* ms\)' "$1" || true)))"
}

need x86_64-w64-mingw32-g++-posix g++-mingw-w64-x86-64-posix
need "$OX_WINE" wine64
need dpkg-source dpkg-dev
[ -d /usr/src/googletest ] || skip "the sources of GoogleTest are missing (Debian: googletest)"

mkdir -p "$here"
build_dependencies
build_library
run_consumer
run_tests >"$here/tests.log" 2>&1 || true
"$OX_WINE" "$here/build/bin/ox_result_hash.exe" >"$here/hashes.txt"
grep -E '^\[  FAILED  \]|_tests.exe ended|\*\*\*(Failed|Timeout|Exception)' "$here/tests.log" || true
print_row "Windows x86-64 (MinGW-w64 $(x86_64-w64-mingw32-g++-posix -dumpversion), Wine $("$OX_WINE" --version))" \
    "$(count_cases "$here/tests.log")" "$(count_hashes "$here/hashes.txt")"
