#!/usr/bin/env bash
# Runs a command on a virtual screen of its own, with a window manager:
#   tools/with_screen.sh [WIDTHxHEIGHT] COMMAND ...
# With MANAGER=none there is no window manager.
set -euo pipefail
size=1920x1080
if [[ $1 =~ ^[0-9]+x[0-9]+$ ]]; then
    size=$1
    shift
fi
scratch=$(mktemp -d)
screen=
manager=
finish() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null || :
    [ -z "$screen" ] || kill "$screen" 2>/dev/null || :
    wait 2>/dev/null || :
    rm -rf "$scratch"
}
trap finish EXIT

exec 3>"$scratch/display"
# Without -noreset the screen starts anew when its last client leaves, and a question asked
# before the manager has come throws the manager out.
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset >"$scratch/xvfb.log" 2>&1 &
screen=$!
exec 3>&-
for _ in $(seq 400); do
    [ -s "$scratch/display" ] && break
    sleep 0.05
done
[ -s "$scratch/display" ] || { echo "the virtual screen did not start:" >&2; cat "$scratch/xvfb.log" >&2; exit 1; }
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
unset WAYLAND_DISPLAY
mkdir -p "$scratch/config" "$scratch/runtime"
chmod 700 "$scratch/runtime"
export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/runtime
export QT_QPA_PLATFORM=xcb QT_LOGGING_RULES="qt.qpa.*=false"
[ "${MANAGER:-}" != none ] || { "$@"; exit; }
# One desktop and no menu on its ground, whose entries end the manager or hide the windows.
mkdir -p "$scratch/config/openbox"
sed -e '/<context name="Root">/,/<\/context>/d' -e 's|<number>[0-9]*</number>|<number>1</number>|' \
    /etc/xdg/openbox/rc.xml >"$scratch/config/openbox/rc.xml"
openbox >"$scratch/openbox.log" 2>&1 &
manager=$!
for _ in $(seq 400); do
    # Written when the manager has taken over every window; one that comes earlier can be lost.
    manages=$(xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -c 'window id') || :
    [ "$manages" = 0 ] || break
    sleep 0.05
done
[ "$manages" != 0 ] || { echo "the window manager did not start:" >&2; cat "$scratch/openbox.log" >&2; exit 1; }
"$@"
