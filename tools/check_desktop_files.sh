#!/usr/bin/env bash
# Validates what a desktop reads about the program:
#   tools/check_desktop_files.sh FOLDER     with the made files of packaging/
set -euo pipefail
made=$1
cd "$(dirname "$0")/../packaging"
desktop-file-validate ombrelia-terrain-editor.desktop
(cd "$OLDPWD" && appstreamcli validate --no-net "$made/ombrelia-terrain-editor.metainfo.xml")
warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
    ombrelia-terrain-editor.1 2>&1 >/dev/null)
[ -z "$warnings" ] || { echo "the manual page: $warnings" >&2; exit 1; }
