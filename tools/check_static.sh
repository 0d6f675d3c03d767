#!/usr/bin/env bash
# Both compilers and the checks of the code as it stands: g++ and clang build everything without a
# warning, clang's programs pass the tests that need no screen, and clang-tidy finds nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang clang-tidy
build strict yes all benchmarks picture_book
build clang yes all benchmarks picture_book
step "Running the tests that need no screen, as clang makes them"
run_tests clang -E "$SCREEN_TESTS"
step "Looking for mistakes that no compiler sees"
# The unit tests take twice as long as all the rest together; the compilers alone look at them, and
# at what only a browser runs.
git ls-files 'src/*.cpp' 'tests/*.cpp' 'benchmarks/*.cpp' | grep -Ev '^(tests/(fuzz|unit)|(src/platform|benchmarks)/web)/' |
    xargs -P2 -n4 clang-tidy -p build-clang --quiet 2> >(grep -v 'warnings\? .*generated\.$' >&2)
echo "clang-tidy finds nothing"
