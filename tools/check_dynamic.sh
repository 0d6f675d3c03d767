#!/usr/bin/env bash
# The checks of the memory: every test that needs no screen under the address and undefined-behaviour
# sanitizers, and under valgrind the scenario that visits everything.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" valgrind
build sanitize yes "${NO_SCREEN_TARGETS[@]}"
# The sanitizer of g++ 12 misreads the thread storage of libraries that are loaded while the program
# runs, as the toolkit's picture formats are, and its search for leaks crashes there.
export ASAN_OPTIONS=intercept_tls_get_addr=0
step "Running the tests that need no screen under the sanitizers"
run_tests sanitize -E "$SCREEN_TESTS"

build "$PRESET" yes scenario
step "Running a scenario under valgrind"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
scenario=$PWD/tests/scenarios/day/one_day_visits_everything.txt
tool=$PWD/$(folder_of "$PRESET")/scenario
cd "$scratch"
sed -n 's/^# given p.ppm //p' "$scenario" >p.ppm
valgrind --quiet --error-exitcode=9 --leak-check=full "$tool" "$scenario"
echo "valgrind finds nothing"
