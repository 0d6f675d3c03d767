#!/usr/bin/env bash
# Validates what a desktop reads about the program: its entry, its description and its manual page.
# Newer tools have rules of their own; those that this is written for are named.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
cd packaging
if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate ombrelia-terrain-editor.desktop
else
    echo "left out: desktop-file-validate is not here"
fi
if has_version appstreamcli 0.16; then
    made=$(mktemp -d)
    trap 'rm -rf "$made"' EXIT
    version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' ../CMakeLists.txt)
    date=$(sed -n 's/^set(RELEASE_DATE \(.*\))/\1/p' CMakeLists.txt)
    sed "s/@PROJECT_VERSION@/$version/; s/@RELEASE_DATE@/$date/" \
        ombrelia-terrain-editor.metainfo.xml.in >"$made/ombrelia-terrain-editor.metainfo.xml"
    appstreamcli validate --no-net "$made/ombrelia-terrain-editor.metainfo.xml"
fi
if has_version groff 1.22; then
    warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
        ombrelia-terrain-editor.1 2>&1 >/dev/null)
    [ -z "$warnings" ] || { echo "the manual page: $warnings" >&2; exit 1; }
    echo "the manual page has no warning"
fi
