#!/usr/bin/env bash
# Runs a command on a session bus on which assistive technology listens.
set -euo pipefail
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
if [ "${1:-}" != --inside ]; then
    exec dbus-run-session -- "$0" --inside "$@"
fi
shift
/usr/libexec/at-spi-bus-launcher --launch-immediately &
launcher=$!
trap 'kill $launcher 2>/dev/null || :' EXIT
"$@"
