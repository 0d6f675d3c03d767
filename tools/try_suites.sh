#!/usr/bin/env bash
# Tries the committed tree as somebody new does: in a fresh root of each Debian suite, its clone is
# built and shown on a virtual screen (./run --demo), tested (./test) and packed (./package). Ends
# with a table.
#   tools/try_suites.sh [SUITE ...]         bookworm, trixie and testing unless told otherwise
#   CACHE=FOLDER tools/try_suites.sh ...    keeps what the compilers made in FOLDER, for the next try
# Needs root, or a user who may make user namespaces; and the network. What was said in each root is
# left in build-suites/SUITE.log.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
install_missing mmdebstrap git
[ $# -gt 0 ] || set -- bookworm trixie testing

alone=()
if [ "$(id -u)" -eq 0 ]; then
    # What is mounted and started in a root ends with it, even if it is interrupted.
    alone=(unshare --mount --pid --fork --kill-child --mount-proc)
    "${alone[@]}" true 2>/dev/null || {
        echo "This root may not mount. In a container, give it the right to (CAP_SYS_ADMIN)." >&2
        exit 1
    }
else
    install_missing uidmap
    mmdebstrap --unshare-helper true 2>/dev/null || {
        echo "User namespaces are closed to $(id -un). Either run this as root, or give a range in" \
            "/etc/subuid and /etc/subgid and set kernel.unprivileged_userns_clone to 1." >&2
        exit 1
    }
fi

# The mirror that this machine takes its own packages from.
mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Origin: Debian' \
    'Label: Debian' | sed -n 1p)
[ -n "$mirror" ] || { echo "apt knows no mirror of Debian here" >&2; exit 1; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
chmod 755 "$scratch"
git bundle create --quiet "$scratch/tree.bundle" HEAD
cat >"$scratch/try.sh" <<'INSIDE'
cd /srv
git clone --quiet tree.bundle tree && cd tree || exit
. tools/setup.sh
tell() {
    echo "TOLD $*"
}
minutes() {
    printf '%d:%02d' $((SECONDS / 60)) $((SECONDS % 60))
}
for words in "./run --demo" ./test ./package; do
    SECONDS=0
    if $words; then
        tell "$words" "$(minutes)"
    else
        tell "$words" "failed after $(minutes)"
    fi
done
tell g++ "$(g++ -dumpfullversion)"
tell Qt "$(dpkg-query -W -f '${Version}' qt6-base-dev | sed 's/[+-].*//')"
INSIDE

hooks=("--customize-hook=copy-in '$scratch/tree.bundle' '$scratch/try.sh' /srv")
mkdir -p build-suites
failed=no
table=()
for suite in "$@"; do
    step "Trying $suite; the log is build-suites/$suite.log"
    here=()
    after=()
    if [ -n "${CACHE:-}" ]; then
        mkdir -p "$CACHE/$suite"
        chmod 1777 "$CACHE/$suite"  # in a user namespace the root in there is another user
        here=("--customize-hook=mkdir \"\$1/cache\" && mount --bind '$(realpath "$CACHE/$suite")' \"\$1/cache\"")
        after=(--customize-hook='umount "$1/cache"')
    fi
    # A mirror that lags has lists that are out of date by their own word.
    "${alone[@]}" mmdebstrap --variant=apt --format=null --include=git,ca-certificates \
        --aptopt='Acquire::Check-Valid-Until "false"' "${hooks[@]}" "${here[@]}" \
        --customize-hook='chroot "$1" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
            LANG=C.UTF-8 CCACHE_DIR=/cache bash /srv/try.sh </dev/null' \
        "${after[@]}" "$suite" - "deb $mirror $suite main" >"build-suites/$suite.log" 2>&1 </dev/null || :
    told() {
        sed -n "s|^TOLD $1 ||p" "build-suites/$suite.log"
    }
    tests=$(awk '/tests passed, .* out of/ { all += $NF; failed += $4 }
        /\(Skipped\)$/ { left++ }
        END { print all - failed - left, "of", all (left ? ", " left " left out" : "") }' \
        "build-suites/$suite.log")
    table+=("| $suite | $(told g++) | $(told Qt) | $tests | $(told './run --demo') | $(told ./test) | $(told ./package) |")
    [ "$(grep -cE "^TOLD ./(run --demo|test|package) [0-9]+:[0-9]+$" "build-suites/$suite.log")" = 3 ] || failed=yes
    echo "${table[-1]}"
done

step "What came out"
printf '%s\n' "| Suite | g++ | Qt | Tests | \`./run --demo\` | \`./test\` | \`./package\` |" \
    "|---|---|---|---|---|---|---|" \
    "${table[@]}"
[ "$failed" = no ]
