#!/usr/bin/env bash
# Which lines and branches of the logic the tests without a screen run, and which ones of the
# toolkit's back end those on real windows; fails below 98 and 95 of 100 lines and at a line that
# does not run without a reason in tests/coverage/reasons.tsv.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang llvm
folder=build-clang
screen=(window_tests screen_tests toolkit_tests text_tests two_ways_screen ombrelia-terrain-editor)
build clang yes unit_tests scenario "${screen[@]}" two_ways_model

# count SHARE TESTS PROGRAM...: runs the tests, then looks at which lines of the programs ran.
count() {
    local share=$1 tests=$2 objects=() program
    shift 2
    step "Running the tests of the $share"
    rm -rf $folder/profiles
    LLVM_PROFILE_FILE=$PWD/$folder/profiles/%p-%c.profraw run_tests clang -R "$tests"
    step "Counting"
    # A process that is ended as it begins leaves less than a count.
    llvm-profdata merge -sparse -failure-mode=all $folder/profiles/*.profraw \
        -o $folder/$share.profdata 2>/dev/null
    rm -rf $folder/profiles
    for program; do
        objects+=(-object "$folder/$program")
    done
    llvm-cov export "${objects[@]:1}" -instr-profile $folder/$share.profdata -format=text \
        >$folder/$share.json 2>/dev/null
    tools/coverage_report.py "$share" $folder/$share.json
}
count logic '^(unit|scenario)\.' unit_tests scenario
count screen '^(window|screens|toolkit|text|accessibility|wayland|two_ways\.scenarios)' "${screen[@]}"
