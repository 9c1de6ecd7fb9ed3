#!/usr/bin/env bash
# Debian 12: what a newcomer does there, from the demo to a program of their own.
set -euo pipefail
readonly platform=debian12 suite=bookworm
readonly inside=inside_debian.sh
source "$(dirname "${BASH_SOURCE[0]}")/debian.sh"
