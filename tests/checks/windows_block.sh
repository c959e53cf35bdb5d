#!/usr/bin/env bash
# Builds the shared block of Windows with its test and runs it under wine: two Windows processes share the block.
#
#   windows_block.sh COMPILER WINE FOLDER    FOLDER: where the program and, while it runs, wine's own files lie
set -euo pipefail

compiler=$1
wine=$2
folder=$3
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

"$compiler" -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror -static \
    -I source/simulator source/simulator/sharedblock_windows.cpp tests/simulator/windowsblock.cpp \
    -o "$folder/windowsblock.exe"

# A fresh home for wine, seven hundred megabytes while it stands: nothing of the user's is read or changed.
export WINEPREFIX=$folder/wine
export WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY WAYLAND_DISPLAY
wineserver=$(dirname "$(realpath "$wine")")/wineserver

rm -rf "$WINEPREFIX"

# Wine's server outlives the program for some seconds with its outputs open: to a file, or the caller would wait on it.
result=0
timeout 240 "$wine" "$folder/windowsblock.exe" >"$folder/windowsblock.txt" 2>&1 </dev/null || result=$?
cat "$folder/windowsblock.txt"
grep -q '^0 failures' "$folder/windowsblock.txt" || result=1

if [ -x "$wineserver" ]; then
    # The server of this home alone.
    "$wineserver" -k || true
    "$wineserver" -w || true
fi
rm -rf "$WINEPREFIX"
exit "$result"
