#!/usr/bin/env bash
# Makes the Debian packages of the library: build/packages/libox-utilities*.deb.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --preset install -DCMAKE_INSTALL_PREFIX=/usr
cmake --build --preset install
rm -rf build/packages
mkdir -p build/packages
(cd build/install && cpack -G DEB -B ../packages)
rm -rf build/packages/_CPack_Packages
