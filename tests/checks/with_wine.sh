#!/usr/bin/env bash
# Runs a command with a fresh home for wine, which is gone afterwards: nothing of the user's is read or changed. Passes the
# command's exit code on.
#
#   with_wine.sh WINE HOME COMMAND...    HOME: where wine's own files lie while the command runs, seven hundred megabytes
set -euo pipefail

wine=$1
export WINEPREFIX=$2
shift 2
export WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY WAYLAND_DISPLAY
wineserver=$(dirname "$(realpath "$wine")")/wineserver

rm -rf "$WINEPREFIX"
result=0
"$@" || result=$?
if [ -x "$wineserver" ]; then
    # The server of this home alone.
    "$wineserver" -k || true
    "$wineserver" -w || true
fi
rm -rf "$WINEPREFIX"
exit "$result"
