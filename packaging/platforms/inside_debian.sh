#!/usr/bin/env bash
# What a newcomer does with the unpacked sources in a fresh Debian, as root. Run by debian.sh inside.
set -euo pipefail

step() {
    echo "== $(date +%T) $*"
}

# Programs that use the installed library: found by CMake, and by pkg-config.
run_consumers() {
    rm -rf /tmp/consumers
    cmake -S tests/packaging/consumer -B /tmp/consumers/package
    cmake --build /tmp/consumers/package
    /tmp/consumers/package/consumer
    # shellcheck disable=SC2046  # one word a flag
    g++ -std=c++17 tests/packaging/consumer/main.cpp \
        $(pkg-config --cflags --libs ox_utilities) -o /tmp/consumers/by_pkgconfig
    /tmp/consumers/by_pkgconfig
}

# A program that takes the sources in.
run_subproject() {
    cmake -S tests/packaging/subproject -B /tmp/subproject -DOX_SOURCE="$PWD" \
        -DCMAKE_BUILD_TYPE=Release
    cmake --build /tmp/subproject --parallel
    /tmp/subproject/consumer
}

# Nothing of the library is left: `expect_gone PREFIX`.
expect_gone() {
    local left
    left=$(find "$1/lib" "$1/include" "$1/share" -name '*ox_utilities*' -o -name '*ox-utilities*')
    [ -z "$left" ] || { echo "left behind: $left" >&2; exit 1; }
}

step demo
./run demo
[ -s out/house/house.png ]

step test
./run test 2>&1 | tee build/tests.log || true # the row tells how many passed
build/release/tests/bits/ox_result_hash >build/hashes.txt

step install
cmake --preset install
cmake --build --preset install
cmake --install build/install
ldconfig
run_consumers
xargs rm <build/install/install_manifest.txt
ldconfig
expect_gone /usr/local

step packages
apt-get install -y -qq --no-install-recommends dpkg-dev file >/dev/null
packaging/make_packages.sh
dpkg --install build/packages/*.deb
run_consumers
dpkg --remove libox-utilities-dev libox-utilities1
expect_gone /usr

step subproject
run_subproject
step done
