#!/usr/bin/env bash
# Has a compiler for Windows read every source of the program and of the tools that go with it, in their Windows
# branches and without the files of other platforms: the sources without Qt first, then all others against Qt's headers.
# Nothing is linked: Qt's libraries for Windows are not here.
#
#   windows_sources.sh COMPILER FOLDER GENERATED QT_HEADERS...
#
#   FOLDER: where the precompiled headers lie while it runs; GENERATED: the folder of the forms' headers;
#   QT_HEADERS: the folders of Qt's headers, among them that of the qplatformdefs.h for this compiler
set -euo pipefail

compiler=$1
folder=$2/windows_sources
generated=$3
shift 3
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

sources_without_qt() {
    find source ZephanCommon -name '*_windows.cpp'
    find tools/flysim -name '*.cpp' ! -name '*_posix.cpp'
    echo tests/support/blockpeer_main.cpp
}

# soak and tour drive the window with what the tests have, and that is at home on POSIX systems alone; so is the launcher.
sources_with_qt() {
    find source ZephanCommon tools -name '*.cpp' \
        ! -name '*_posix.cpp' ! -name '*_windows.cpp' ! -path 'tools/flysim/*' ! -path 'tools/soak/*' ! -path 'tools/tour/*' \
        ! -path 'tools/launcher/*'
}

# Qt's headers were configured on this system; what they know of the platform they take from the compiler. Without
# OpenGL they leave out windows.h, whose functions would clash with names that no file of ours meets it with.
qt_options() {
    local header
    printf '%s\n' -DUNICODE -D_UNICODE -DQT_NO_OPENGL -DQT_DEPRECATED_WARNINGS -DQT_NO_CAST_FROM_ASCII \
        -DQT_NO_CAST_FROM_BYTEARRAY -DQT_NO_URL_CAST_FROM_STRING
    for header in "$@"; do printf -- '-isystem\n%s\n' "$header"; done
}

check=("$compiler" -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror)

mapfile -t plain < <(sources_without_qt)
"${check[@]}" -I source/simulator -I tools/flysim -I ZephanCommon "${plain[@]}"

rm -rf "$folder"
mkdir -p "$folder"
trap 'rm -rf "$folder"' EXIT
mapfile -t options < <(qt_options "$@")
mapfile -t rooms < <(find source ZephanCommon tools -name '*.h' -printf '-I%h\n' | sort -u)
# Reading Qt's headers is most of the work: once for all. A header by itself has a warning of its own.
cp tests/support/precompiled.h "$folder"
"${check[@]/-fsyntax-only/-w}" "${options[@]}" -x c++-header "$folder/precompiled.h"

mapfile -t with_qt < <(sources_with_qt)
printf '%s\0' "${with_qt[@]}" | xargs -0 -n 8 -P "$(getconf _NPROCESSORS_ONLN)" \
    "${check[@]}" -include "$folder/precompiled.h" -Winvalid-pch "${options[@]}" -I "$generated" "${rooms[@]}"
# Where the platform's start code calls qMain itself.
"${check[@]}" -DQT_NEEDS_QMAIN "${options[@]}" "${rooms[@]}" source/main.cpp
"${compiler%g++*}windres" -I resources/images/app packaging/windows/program.rc "$folder/program.o"
echo "read: $((${#plain[@]} + ${#with_qt[@]})) sources"
