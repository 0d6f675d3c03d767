#!/usr/bin/env bash
# Makes the documents' pictures anew from the running program: every window and option frame at
# scales 1, 1.5 and 2, the pictures of the user's guide, and the editor in a browser.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${WEB_PACKAGES[@]}" \
    "${BROWSER_PACKAGES[@]}"
build release yes picture_book
build web no page
rm -rf docs/pictures
mkdir -p docs/pictures/windows docs/pictures/guide
tools/with_screen.sh 1000x560 build/picture_book windows docs/pictures/windows 1
tools/with_screen.sh 1440x800 build/picture_book windows docs/pictures/windows 1.5
tools/with_screen.sh 1920x1080 build/picture_book windows docs/pictures/windows 2
tools/with_screen.sh 1920x1080 build/picture_book road docs/pictures/guide
tools/with_screen.sh 1000x560 build/picture_book maps docs/pictures/guide
tools/with_screen.sh 1000x560 build/picture_book motions docs/pictures/guide
tools/with_screen.sh 1280x720 tests/web/make_picture.py docs/pictures/browser.png
