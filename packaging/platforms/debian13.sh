#!/usr/bin/env bash
# Debian 13: what a newcomer does there, from the demo to a program of their own.
set -euo pipefail
readonly platform=debian13 suite=trixie
readonly inside=inside_debian.sh
source "$(dirname "${BASH_SOURCE[0]}")/debian.sh"
