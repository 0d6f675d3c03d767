#!/usr/bin/env bash
# The same digits on other processors: the headless tool for arm64 and for s390x, which has the most
# significant byte first, runs every scenario under an emulator. Its folders are build-PROCESSOR.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing g++ cmake ninja-build ccache qemu-user g++-aarch64-linux-gnu g++-s390x-linux-gnu
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
for processor in aarch64 s390x; do
    step "Building for $processor"
    # Linked whole, so that the emulator needs no libraries of the other processor.
    cmake -S . -B "build-$processor" -G Ninja -DCMAKE_BUILD_TYPE=Release -DHEADLESS_ONLY=ON \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DWARNINGS_ARE_ERRORS=ON -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR="$processor" \
        -DCMAKE_CXX_COMPILER="$processor-linux-gnu-g++" -DCMAKE_EXE_LINKER_FLAGS=-static \
        -DCMAKE_CROSSCOMPILING_EMULATOR="qemu-$processor" >/dev/null
    cmake --build "build-$processor"
    step "Running the scenarios on $processor"
    ctest --test-dir "build-$processor" -j2 --no-tests=error --output-on-failure
done
