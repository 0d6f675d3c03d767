#!/usr/bin/env bash
# Simulated hours of use, with memory, open files and times after each; fails if anything grows:
#   tools/long_life.sh [HOURS]      8 unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes long_life
step "Working ${1:-8} hours"
build/long_life "${1:-8}"
