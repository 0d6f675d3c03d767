#!/usr/bin/env bash
# Users by chance on the logic, under the sanitizers; fails at a finding and leaves it as a short
# scenario in build-fuzz/monkeys:
#   tools/monkey.sh [EVENTS [SEED]]      200000 events in all and seeds from 1 on unless told otherwise
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
events=${1:-200000}
first=${2:-1}
each=5000 # events of a seed
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang
build fuzz no monkey

step "Playing $events events by chance"
half=$(((events + 2 * each - 1) / (2 * each))) # seeds of each of two processes
found=build-fuzz/monkeys
mkdir -p "$found"
nice build-fuzz/monkey "$first" "$half" "$each" "$found" &
second=$!
status=0
nice build-fuzz/monkey "$((first + half))" "$half" "$each" "$found" || status=1
wait "$second" || status=1
exit "$status"
