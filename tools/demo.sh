#!/usr/bin/env bash
# Walks the main job by real mouse events: tools/demo.sh EDITOR FOLDER
# Leaves FOLDER/terrain.bmp and pictures of the windows. Starts a virtual screen for itself.
set -euo pipefail
if [ "${DEMO_HAS_SCREEN:-}" != yes ]; then
    exec env DEMO_HAS_SCREEN=yes "$(dirname "$0")/with_screen.sh" "${DEMO_SCREEN:-1920x1080}" "$0" "$@"
fi
editor=$1
mkdir -p "$2"
folder=$(cd "$2" && pwd)
rm -f "$folder"/terrain.bmp "$folder"/*.png

"$editor" &
running=$!
trap 'kill "$running" 2>/dev/null || :' EXIT

say() {
    echo "demo: $*"
}

# Waits for a window of exactly this width in units to show; sets window, left, top, scale.
find_window() { # title pattern, width in units
    local candidate WIDTH HEIGHT X Y
    for _ in $(seq 100); do
        for candidate in $(xdotool search --onlyvisible --name "$1" 2>/dev/null); do
            eval "$(xdotool getwindowgeometry --shell "$candidate")"
            for scale in 1 1.25 1.5 1.75 2 2.5 3 4; do
                if [ "$(awk "BEGIN { w = $2 * $scale; print (w == int(w)) ? w : int(w) + 1 }")" = "$WIDTH" ]; then
                    window=$candidate left=$X top=$Y
                    sleep 0.3
                    return
                fi
            done
        done
        sleep 0.1
    done
    echo "demo: no window '$1' of $2 units appeared" >&2
    exit 1
}

# A click at a place in units of the window found last.
click() {
    local x y
    x=$(awk "BEGIN { print int($left + $1 * $scale) }")
    y=$(awk "BEGIN { print int($top + $2 * $scale) }")
    xdotool mousemove "$x" "$y" sleep 0.15 click 1 sleep 0.25
}

picture() {
    sleep 0.2
    import -window "$window" "$folder/$1.png"
}

title="^Ombrelia Terrain Editor$"
find_window "$title" 460
say "the splash"
picture splash
click 230 100

find_window "$title" 340
say "choosing Large"
picture size
click 233 138

find_window "$title" 771
say "opening the fractal page"
click 429 150
xdotool mousemove_relative 0 60
picture fractal
say "pressing Generate"
click 599 186
xdotool mousemove "$(awk "BEGIN { print int($left + 120 * $scale) }")" \
    "$(awk "BEGIN { print int($top + 200 * $scale) }")" sleep 0.3
picture landscape
say "pressing Menu and Save"
click 436 54
picture menu
click 540 155
for _ in $(seq 50); do
    dialog=$(xdotool search --onlyvisible --name "^Save Terrain$" 2>/dev/null | tail -n 1) && [ -n "$dialog" ] && break
    sleep 0.1
done
[ -n "${dialog:-}" ] || { echo "demo: no save dialog appeared" >&2; exit 1; }
sleep 0.5
xdotool type --delay 12 "$folder/terrain.bmp"
xdotool key Return
for _ in $(seq 50); do
    [ -s "$folder/terrain.bmp" ] && break
    sleep 0.1
done
[ -s "$folder/terrain.bmp" ] || { echo "demo: no file was saved" >&2; exit 1; }
say "saved $(stat -c %s "$folder/terrain.bmp") bytes"
say "leaving by the close button"
sleep 0.5
click 757 11
sleep 0.5
xdotool key alt+y
for _ in $(seq 50); do
    kill -0 "$running" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$running" 2>/dev/null && { echo "demo: the editor did not end" >&2; exit 1; }
say "done: terrain.bmp and pictures are in $2/"
