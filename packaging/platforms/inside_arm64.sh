#!/usr/bin/env bash
# Builds for arm64 in a fresh Debian on another machine. Run by arm64.sh inside.
set -euo pipefail

readonly tools=(g++-aarch64-linux-gnu cmake ninja-build pkg-config python3 qemu-user libutfcpp-dev
    libcli11-dev)
readonly libraries=(libpolyclipping-dev libglu1-mesa-dev libgl-dev libegl-dev libpng-dev libgtest-dev
    libgmock-dev)

install_packages() {
    dpkg --add-architecture arm64
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${tools[@]}" "${libraries[@]/%/:arm64}" >/dev/null
}

build() {
    cmake -S . -B build/arm64 -G Ninja -Wno-dev \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/packaging/platforms/arm64-toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS=-Werror -DOX_BUILD_EXAMPLES=OFF \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST
    cmake --build build/arm64 "$@"
}

mkdir -p build
command -v qemu-aarch64 >/dev/null || install_packages
build --target ox_result_hash
qemu-aarch64 build/arm64/tests/bits/ox_result_hash >build/hashes.txt
if [ "${OX_QUICK:-0}" = 0 ]; then
    build
    (cd build/arm64 && ctest --output-on-failure --label-exclude check -j 2) 2>&1 |
        tee build/tests.log || true
fi
