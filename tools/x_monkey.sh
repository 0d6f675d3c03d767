#!/usr/bin/env bash
# A user by chance on the real program on a virtual screen, by real mouse and keyboard events:
#   tools/x_monkey.sh [SECONDS [SEED]]      60 seconds with seed 1 unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes watched_editor
step "Working the real program by chance for ${1:-60} s"
tools/with_screen.sh 1920x1080 python3 tests/monkey/screen/x_monkey.py build/watched_editor \
    "${1:-60}" "${2:-1}"
