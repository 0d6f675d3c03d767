#!/usr/bin/env bash
# Builds the benchmarks and runs them on a virtual screen; further words go to each of them.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build release yes bench_logic bench_import bench_start
step "Measuring"
for program in bench_logic bench_import bench_start; do
    tools/with_screen.sh "build/$program" --benchmark_repetitions=5 \
        --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true "$@"
done
