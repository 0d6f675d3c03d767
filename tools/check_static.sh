#!/usr/bin/env bash
# Both compilers and the checks of the code as it stands: g++ and clang build everything without a
# warning, and clang-tidy finds nothing. tools/coverage.sh runs the tests as clang makes them.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang clang-tidy
build strict yes all benchmarks picture_book
build clang yes all benchmarks picture_book
step "Looking for mistakes that no compiler sees"
# Tests in GoogleTest take longer than all the rest together; the compilers alone look at them, and at
# what only a browser runs.
git ls-files 'src/*.cpp' 'tests/*.cpp' 'benchmarks/*.cpp' | grep -Ev '^(tests/(fuzz|unit)|(src/platform|benchmarks)/web)/|/test_[a-z_0-9]*\.cpp$' |
    xargs -P2 -n4 clang-tidy -p build-clang --quiet 2> >(grep -v 'warnings\? .*generated\.$' >&2)
echo "clang-tidy finds nothing"
