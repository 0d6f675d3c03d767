#!/usr/bin/env bash
# Processor time of an idle editor next to that of an empty window, over the same half minute, on
# the screen that it is given:
#   tools/with_screen.sh benchmarks/idle.sh RESULT.json
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=30

# Nanoseconds on a processor of all threads of a process, those that have ended too.
time_of() {
    python3 -c 'import sys, time; print(time.clock_gettime_ns((~int(sys.argv[1]) << 3) | 2))' "$1"
}

# Clicks at a share of the width and height of the newest window of the program.
click_share() {
    eval "$(xdotool search --onlyvisible --name '^Ombrelia Terrain Editor$' | tail -n 1 |
        xargs xdotool getwindowgeometry --shell)"
    xdotool mousemove $((X + WIDTH * $1 / 100)) $((Y + HEIGHT * $2 / 100)) sleep 0.2 click 1 sleep 1.5
}

# entry NAME NANOSECONDS: as the benchmarks write their results.
entry() {
    awk -v name="$1" -v ns="$2" -v s=$seconds 'BEGIN {
        printf "{\"name\": \"%s\", \"run_name\": \"%s\", \"run_type\": \"iteration\", ", name, name
        printf "\"real_time\": %d, \"cpu_time\": %d, \"time_unit\": \"ns\", ", ns, ns
        printf "\"percent\": %.5f}", ns / s / 1e7 }'
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
editor_time=$(($(time_of $editor) - editor_before))
empty_time=$(($(time_of $empty) - empty_before))
printf '{"benchmarks": [%s,\n%s]}\n' "$(entry idle_editor $editor_time)" \
    "$(entry idle_empty $empty_time)" >"$1"
