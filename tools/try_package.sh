#!/usr/bin/env bash
# Installs a package into a fresh Debian root, starts the program there, and removes it again:
#   tools/try_package.sh FILE.deb
# Needs root, and the network for the packages of the fresh root.
set -euo pipefail
package=$(realpath "$1")
root=$(mktemp -d /tmp/fresh-debian.XXXXXX)
trap 'rm -rf --one-file-system "$root"' EXIT
step() {
    printf '\n== %s\n' "$*"
}
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root DEBIAN_FRONTEND=noninteractive "$@"
}

step "Making a fresh Debian root"
mmdebstrap --quiet --variant=apt --include=xvfb,x11-utils bookworm "$root" >/dev/null
cp "$package" "$root/editor.deb"
before=$(inside dpkg-query -W -f '${Package}\n' | sort)

step "Installing the package"
inside apt-get update -qq
inside apt-get install -y -qq --no-install-recommends /editor.deb >/dev/null
installed=$(inside dpkg -L ombrelia-terrain-editor)
echo "$installed"

step "Starting the editor"
cat >"$root/start.sh" <<'E2'
Xvfb :9 -screen 0 1280x800x24 -nolisten tcp -noreset >/dev/null 2>&1 &
screen=$!
export DISPLAY=:9
sleep 1
ombrelia-terrain-editor 2>/tmp/said &
editor=$!
for _ in $(seq 100); do
    xwininfo -root -tree 2>/dev/null | grep -q '"Ombrelia Terrain Editor"' && seen=yes && break
    kill -0 $editor || break
    sleep 0.1
done
cat /tmp/said
kill $editor
wait $editor
kill $screen
[ "${seen:-}" = yes ]
E2
inside sh /start.sh || { echo "the editor did not show its window" >&2; exit 1; }
echo "its window came up"

step "Removing the package"
inside apt-get purge -y -qq ombrelia-terrain-editor >/dev/null
inside apt-get autoremove --purge -y -qq >/dev/null
while read -r path; do
    if [ ! -d "$root$path" ] && [ -e "$root$path" ]; then
        echo "left behind: $path" >&2
        exit 1
    fi
done <<<"$installed"
[ ! -e "$root/usr/share/ombrelia-terrain-editor" ] || { echo "its folder is left behind" >&2; exit 1; }
after=$(inside dpkg-query -W -f '${Package}\n' | sort)
[ "$before" = "$after" ] || { echo "packages are left behind" >&2; diff <(echo "$before") <(echo "$after") >&2; exit 1; }
echo "nothing is left behind"
