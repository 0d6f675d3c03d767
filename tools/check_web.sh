#!/usr/bin/env bash
# The same digits in a browser's machine: the headless tool as WebAssembly runs every scenario under
# node. Its folder is build-web.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing "${WEB_PACKAGES[@]}"
build web yes
step "Running the scenarios as WebAssembly"
ctest --test-dir build-web -j2 --no-tests=error --output-on-failure
end_step
