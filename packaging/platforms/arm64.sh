#!/usr/bin/env bash
# Linux on arm64: cross built in a fresh Debian 12 with Debian's libraries of that architecture, run by
# QEMU. OX_QUICK=1 leaves the suite out and compares the hashes of the results only.
set -euo pipefail
readonly platform=arm64 suite=bookworm
readonly inside=inside_arm64.sh
source "$(dirname "${BASH_SOURCE[0]}")/debian.sh"
