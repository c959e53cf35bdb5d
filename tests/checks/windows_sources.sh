#!/usr/bin/env bash
# Has a compiler for Windows read all sources that know no Qt, without the files of other platforms.
#
#   windows_sources.sh COMPILER
set -euo pipefail

compiler=$1
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

mapfile -t sources < <(
    find source ZephanCommon -name '*_windows.cpp'
    find tools/flysim -name '*.cpp' ! -name '*_posix.cpp'
    echo tests/support/blockpeer_main.cpp
)
for source in "${sources[@]}"; do
    echo "$source"
    "$compiler" -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror \
        -I source/simulator -I tools/flysim "$source"
done
