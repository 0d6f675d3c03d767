#!/usr/bin/env bash
# Kills the real program on a virtual screen while it saves maps and keeps colour sets, and looks at
# what is left:
#   tools/kill_editor.sh [KILLS [SEED]]      20 kills with seed 1 unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes watched_editor
step "Killing the real program ${1:-20} times"
tools/with_screen.sh 1000x560 python3 tests/monkey/screen/killed_editor.py build/watched_editor \
    "${1:-20}" "${2:-1}"
