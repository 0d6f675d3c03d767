#!/usr/bin/env bash
# Makes the documents' pictures anew from the running program, at scales 1 and 2.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes picture_book
mkdir -p docs/pictures
tools/with_screen.sh 1000x560 build/picture_book docs/pictures 1
tools/with_screen.sh 1920x1080 build/picture_book docs/pictures 2
