#!/usr/bin/env bash
# Makes writing fail at every point, fills the disk, lets two editors work at once, holds the
# settings and kills editors:
#   tools/faults.sh [KILLS]      500 kills unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes fail_io stored_scenario
step "Making writing fail"
python3 tests/faults/faults.py --build build --library build/tests/faults/libfail_io.so \
    --kills "${1:-500}"
