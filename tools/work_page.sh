#!/usr/bin/env bash
# Works the editor's page in one real browser, on virtual screens: tools/work_page.sh chromium|firefox
# SCENARIO_TOOL names the headless tool that does the same beside it.
set -euo pipefail
cd "$(dirname "$0")/.."
browser=$1
tools/with_screen.sh 1920x1080 tests/web/test_browser.py "${browser^}Test" OtherTest
tools/with_screen.sh 1920x1080 tests/web/in_browser.py "$browser"
# Other sizes in device pixels, and how many of them are one of the page's own.
for shape in 800x600:1 1280x800:1.25 1920x1080:1.5 1280x800:2; do
    tools/with_screen.sh "${shape%:*}" tests/web/in_browser.py "$browser" "${shape#*:}" page_sizes
done
