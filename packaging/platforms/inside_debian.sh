#!/usr/bin/env bash
# What a newcomer does with the unpacked sources in a fresh Debian, as root. Run by debian.sh inside.
# OX_QUICK=1 compares the hashes instead of running the suite, and builds the library only once.
set -euo pipefail

step() {
    echo "== $(date +%T) $*"
}

# Programs that use the installed library: found by CMake, and by pkg-config.
run_consumers() {
    rm -rf /tmp/consumers
    cmake -S tests/packaging/consumer -B /tmp/consumers/package -G Ninja
    cmake --build /tmp/consumers/package
    /tmp/consumers/package/consumer
    # shellcheck disable=SC2046  # one word a flag
    g++ -std=c++17 tests/packaging/consumer/main.cpp \
        $(pkg-config --cflags --libs ox_utilities) -o /tmp/consumers/by_pkgconfig
    /tmp/consumers/by_pkgconfig
}

# A program that takes the sources in.
run_subproject() {
    cmake -S tests/packaging/subproject -B /tmp/subproject -G Ninja -DOX_SOURCE="$PWD" \
        -DCMAKE_BUILD_TYPE=Release
    cmake --build /tmp/subproject --parallel
    /tmp/subproject/consumer
}

# No file of the library is left: `expect_gone PREFIX`.
expect_gone() {
    local left
    left=$(find "$1/lib" "$1/include" "$1/share" -not -type d \
        \( -path '*ox_utilities*' -o -path '*ox-utilities*' -o -path '*/include/ox/*' \))
    [ -z "$left" ] || { echo "left behind: $left" >&2; exit 1; }
}

step demo
./run demo
[ -s out/house/house.png ]

step test
if [ "${OX_QUICK:-0}" = 0 ]; then
    ./run test 2>&1 | tee build/tests.log || true # the row tells how many passed
    preset=install
    cmake --preset install
else
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        libgtest-dev libgmock-dev python3 >/dev/null
    cmake --preset release -DOX_BUILD_TESTS=ON -DOX_BUILD_EXAMPLES=OFF
    cmake --build --preset release --target ox_result_hash
    preset=release
    cmake --preset release -DOX_BUILD_TESTS=OFF
fi
build/release/tests/bits/ox_result_hash >build/hashes.txt

step install
cmake --build --preset $preset
cmake --install build/$preset
ldconfig
run_consumers
xargs rm <build/$preset/install_manifest.txt
ldconfig
expect_gone /usr/local

step packages
apt-get install -y -qq --no-install-recommends dpkg-dev file >/dev/null
packaging/make_packages.sh $preset
dpkg --install build/packages/*.deb
run_consumers
dpkg --remove libox-utilities-dev libox-utilities1
expect_gone /usr

[ "${OX_QUICK:-0}" = 0 ] || exit 0
step subproject
run_subproject
