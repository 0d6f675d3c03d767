#!/usr/bin/env bash
# Processor time of an idle editor next to that of an empty window, over the same 30 seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${IDLE_HAS_SCREEN:-}" != yes ]; then
    . tools/setup.sh
    install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
    build release yes ombrelia-terrain-editor idle_empty
    exec env IDLE_HAS_SCREEN=yes tools/with_screen.sh "$0"
fi
seconds=30

# Nanoseconds on a processor of all threads of a process.
time_of() {
    cat /proc/"$1"/task/*/schedstat | awk '{ sum += $1 } END { print sum }'
}

# Clicks at a share of the width and height of the newest window of the program.
click_share() {
    eval "$(xdotool search --onlyvisible --name '^Ombrelia Terrain Editor$' | tail -n 1 |
        xargs xdotool getwindowgeometry --shell)"
    xdotool mousemove $((X + WIDTH * $1 / 100)) $((Y + HEIGHT * $2 / 100)) sleep 0.2 click 1 sleep 1.5
}

build/idle_empty &
empty=$!
build/ombrelia-terrain-editor &
editor=$!
trap 'kill $empty $editor' EXIT
sleep 2
click_share 20 20
click_share 68 53
xdotool mousemove 3 3 sleep 12
editor_before=$(time_of $editor)
empty_before=$(time_of $empty)
sleep $seconds
awk -v a=$(($(time_of $editor) - editor_before)) -v b=$(($(time_of $empty) - empty_before)) -v s=$seconds \
    'BEGIN { printf "idle editor: %.3f ms in %d s, %.4f %% of a core\nempty window: %.3f ms, %.4f %%\n",
             a / 1e6, s, a / s / 1e7, b / 1e6, b / s / 1e7 }'
