#!/usr/bin/env bash
# Hours of use of the real program by mouse on a virtual screen, without the waits of a user; fails if
# memory, files or threads grow:
#   tools/long_day.sh [HOURS]      8, half an hour of time, unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes watched_editor
step "Working the real program for ${1:-8} hours"
tools/with_screen.sh 1000x560 python3 tests/monkey/screen/long_day.py build/watched_editor "${1:-8}"
