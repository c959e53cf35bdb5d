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
tests/checks/under_wine.sh "$wine" "$folder/windowsblock.exe"
