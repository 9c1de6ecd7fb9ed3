#!/usr/bin/env bash
# Makes the Debian packages of the library: build/packages/libox-utilities*.deb.
# usage: packaging/make_packages.sh [PRESET]   (install)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
preset=${1:-install}
cmake --preset "$preset" -DCMAKE_INSTALL_PREFIX=/usr
cmake --build --preset "$preset"
rm -rf build/packages
mkdir -p build/packages
(cd "build/$preset" && cpack -G DEB -B ../packages)
rm -rf build/packages/_CPack_Packages
