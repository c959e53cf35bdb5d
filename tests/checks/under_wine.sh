#!/usr/bin/env bash
# Runs a Windows program under wine and passes its exit code on. The program prints its checks and "0 failures".
#
#   under_wine.sh WINE PROGRAM    wine's own files lie beside the program while it runs
set -euo pipefail

wine=$1
program=$2
output=${program%.exe}.txt

# A fresh home for wine, seven hundred megabytes while it stands: nothing of the user's is read or changed.
export WINEPREFIX=${program%.exe}-wine
export WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY WAYLAND_DISPLAY
wineserver=$(dirname "$(realpath "$wine")")/wineserver

rm -rf "$WINEPREFIX"

# Wine's server outlives the program for some seconds with its outputs open: to a file, or the caller would wait on it.
result=0
timeout 240 "$wine" "$program" >"$output" 2>&1 </dev/null || result=$?
cat "$output"
grep -q '^0 failures' "$output" || result=1

if [ -x "$wineserver" ]; then
    # The server of this home alone.
    "$wineserver" -k || true
    "$wineserver" -w || true
fi
rm -rf "$WINEPREFIX"
exit "$result"
