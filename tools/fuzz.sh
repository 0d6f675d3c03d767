#!/usr/bin/env bash
# Builds the fuzzers and runs each for some seconds, 30 unless told otherwise; fails at a finding.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
seconds=${1:-30}
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang
build fuzz no make_corpus fuzz_bmp fuzz_pictures fuzz_settings fuzz_scenario

corpus=build-fuzz/corpus
mkdir -p "$corpus/bitmaps" "$corpus/pictures" build-fuzz/findings
cp -r tests/fuzz/corpus/. "$corpus"
build-fuzz/make_corpus "$corpus"

# A fuzzer's name, the longest input, and folders of inputs.
fuzz() {
    local name=$1 longest=$2
    shift 2
    "build-fuzz/fuzz_$name" -max_total_time="$seconds" -max_len="$longest" -verbosity=0 \
        -print_final_stats=1 -artifact_prefix=build-fuzz/findings/ "$@"
}

bitmaps() {
    fuzz bmp 4096 "$corpus/bitmaps"
}

# The libraries of others keep what they once took, and print what they refuse.
pictures() {
    ASAN_OPTIONS=detect_leaks=0 fuzz pictures 8192 -rss_limit_mb=3000 -close_fd_mask=2 \
        "$corpus/pictures" "$corpus/seeds"
}

settings() {
    fuzz settings 2048 "$corpus/settings"
}

scenarios() {
    fuzz scenario 1024 "$corpus/scenarios"
}

# Two at once.
both() {
    local status=0
    "$1" &
    local other=$!
    "$2" || status=1
    wait "$other" || status=1
    return "$status"
}

rm -rf "$corpus/seeds"
cp -r "$corpus/bitmaps" "$corpus/seeds" # the other fuzzer adds to its folder meanwhile
step "Fuzzing the reader of bitmaps and the loader of pictures for $seconds s"
both bitmaps pictures
step "Fuzzing the settings and the reader of scenarios for $seconds s"
both settings scenarios
