#!/usr/bin/env bash
# Builds for arm64 in a fresh Debian on another machine. Run by arm64.sh inside.
set -euo pipefail
shopt -s extglob # the tessellator: one source is a part of another

readonly tools=(g++-aarch64-linux-gnu cmake ninja-build pkg-config python3 qemu-user libutfcpp-dev
    libcli11-dev bzip2)
readonly libraries=(libpolyclipping-dev libglu1-mesa-dev libgl-dev libegl-dev libpng-dev libgtest-dev
    libgmock-dev libgomp1)

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

# Debian compiles the clipping library and the tessellator with fused products and sums, which
# round elsewhere: these are the same sources without them, in the folder exact_dir.
build_exact_dependencies() {
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >/etc/apt/sources.list.d/sources.list
    apt-get update -qq
    rm -rf "$exact_dir"
    mkdir -p "$exact_dir/clipping" "$exact_dir/glu"
    (
        cd "$exact_dir"
        apt-get source -qq --tar-only libpolyclipping libglu
        tar -xf libpolyclipping_*.orig.tar.* -C clipping --strip-components=1
        tar -xf libglu_*.orig.tar.* -C glu --strip-components=1
        local flags=(-O2 -fPIC -w -ffp-contract=off -shared)
        aarch64-linux-gnu-g++ "${flags[@]}" -Wl,-soname,libpolyclipping.so.22 \
            clipping/cpp/clipper.cpp -o libpolyclipping.so.22
        aarch64-linux-gnu-gcc "${flags[@]}" -Wl,-soname,libGLU.so.1 -Iglu/src/include -Iglu/include \
            glu/src/libtess/!(priorityq-heap).c -o libGLU.so.1
    )
}

readonly exact_dir=/tmp/exact
mkdir -p build
command -v qemu-aarch64 >/dev/null || install_packages
build --target ox_result_hash
qemu-aarch64 build/arm64/tests/bits/ox_result_hash >build/hashes_with_debians_libraries.txt
build_exact_dependencies
LD_LIBRARY_PATH=$exact_dir qemu-aarch64 build/arm64/tests/bits/ox_result_hash >build/hashes.txt
echo "Results that differ with Debian's own clipping library and tessellator:"
diff build/hashes_with_debians_libraries.txt build/hashes.txt || true
if [ "${OX_QUICK:-0}" = 0 ]; then
    build
    (cd build/arm64 && LD_LIBRARY_PATH=$exact_dir ctest --output-on-failure --label-exclude check -j 2) 2>&1 |
        tee build/tests.log || true
fi
