#!/usr/bin/env bash
# Builds flysim for Windows with its test and runs both under wine: a Windows process reads what flysim publishes.
#
#   windows_flysim.sh COMPILER WINE FOLDER    FOLDER: where the programs and, while they run, wine's own files lie
set -euo pipefail

compiler=$1
wine=$2
folder=$3
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

build() {
    local program=$1
    shift
    "$compiler" -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror -static \
        -I source/simulator -I tools/flysim source/simulator/sharedblock_windows.cpp "$@" -o "$folder/$program"
}

mapfile -t sources < <(find tools/flysim -name '*.cpp' ! -name '*_posix.cpp')
build flysim.exe "${sources[@]}"
build windowsflysim.exe tests/tools/windowsflysim.cpp
tests/checks/under_wine.sh "$wine" "$folder/windowsflysim.exe"
