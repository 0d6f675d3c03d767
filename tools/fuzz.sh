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
step "Fuzzing the reader of bitmaps for $seconds s"
build-fuzz/fuzz_bmp -max_total_time="$seconds" -max_len=4096 -verbosity=0 -print_final_stats=1 \
    -artifact_prefix=build-fuzz/findings/ "$corpus/bitmaps"
step "Fuzzing the loader of pictures for $seconds s"
# The libraries of others keep what they once took, and print what they refuse.
ASAN_OPTIONS=detect_leaks=0 build-fuzz/fuzz_pictures -max_total_time="$seconds" -max_len=8192 -rss_limit_mb=3000 -verbosity=0 \
    -print_final_stats=1 -close_fd_mask=2 -artifact_prefix=build-fuzz/findings/ \
    "$corpus/pictures" "$corpus/bitmaps"
step "Fuzzing the settings for $seconds s"
build-fuzz/fuzz_settings -max_total_time="$seconds" -max_len=2048 -verbosity=0 -print_final_stats=1 \
    -artifact_prefix=build-fuzz/findings/ "$corpus/settings"
step "Fuzzing scenarios for $seconds s"
build-fuzz/fuzz_scenario -max_total_time="$seconds" -max_len=1024 -verbosity=0 -print_final_stats=1 \
    -artifact_prefix=build-fuzz/findings/ "$corpus/scenarios"
