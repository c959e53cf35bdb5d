#!/usr/bin/env bash
# The installer for Windows, made of what can be built for it here (all but the program itself), installs into a simulator's
# folder under wine and is removed again. It leaves what is the user's.
#
#   windows_installer.sh ... COMPILER WINE    the arguments before these: CMakeLists.txt
# shellcheck disable=SC1091,SC2154
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
compiler=$5
wine=$6
trajector=$simulator/Tools/Trajector

lay_out_payload() {
    local payload=$folder/payload/Tools/Trajector sources_of_flysim
    "$cmake_programs/cmake" --install "$build" --component program --prefix "$payload" >/dev/null
    rm "$payload/ZephanTrajector" # no program of Windows
    mapfile -t sources_of_flysim < <(find "$sources/tools/flysim" -name '*.cpp' ! -name '*_posix.cpp')
    "$compiler" -std=c++17 -static -s -I "$sources/source/simulator" -I "$sources/tools/flysim" \
        "$sources/source/simulator/sharedblock_windows.cpp" "${sources_of_flysim[@]}" -o "$payload/flysim.exe"
}

make_installer() {
    # Wine here runs programs of 64 bits alone; NSIS as its makers give it makes installers of 32 bits, which Windows runs.
    "$cmake_programs/cpack" --config "$build/CPackConfig.cmake" -G NSIS64 -B "$folder/packages" \
        -D CPACK_PACKAGE_FILE_NAME=setup -D "CPACK_NSIS_DEFINES=Target amd64-unicode" \
        -D "CPACK_ZEPHAN_PAYLOAD=$folder/payload" >"$folder/log" 2>&1 || { cat "$folder/log" && fail 'cpack'; }
    ! grep -i 'warning' "$folder/log" || fail 'makensis warns'
}

# Wine's server outlives a program with its outputs open: to a file.
run() { timeout 200 "$wine" "$@" >"$folder/log" 2>&1 </dev/null; }

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

files_below() { (cd "$1" && find . -type f | sort); }

# It goes on in a copy of itself, so that it can take itself away too; empty folders go last.
wait_for_the_uninstaller() {
    local tenths=600
    while [ -e "$trajector/Uninstall.exe" ] || [ -e "$trajector/maps" ]; do
        [ $((tenths--)) -gt 0 ] || return 0 # what is left is told below
        sleep 0.1
    done
}

install_and_remove() {
    local before result=0
    mkdir -p "$folder/elsewhere"
    run "$folder/packages/setup.exe" /S "/D=$(windows_path "$folder/elsewhere")" || result=$?
    [ "$result" = 2 ] || fail "a folder without a simulator gives $result"
    [ -z "$(files_below "$folder/elsewhere")" ] || fail 'something was put into a folder without a simulator'

    make_simulator
    before=$(files_below "$simulator")
    run "$folder/packages/setup.exe" /S "/D=$(windows_path "$simulator")" || fail "the installer ends with $?"
    diff -r -x trajector.ini -x Uninstall.exe "$folder/payload/Tools/Trajector" "$trajector" || fail 'not all is installed'
    look_at_manual "$trajector/manual"
    run "$trajector/flysim.exe" --help || fail 'flysim.exe does not run'
    grep -q '^Usage: flysim' "$folder/log" || fail 'flysim.exe is silent'

    echo '// mine' >"$trajector/maps/service.js"
    run "$folder/packages/setup.exe" /S "/D=$(windows_path "$simulator")" || fail "a second installing ends with $?"
    [ "$(cat "$trajector/maps/service.js")" = '// mine' ] || fail "the user's settings of the map are lost"

    echo 'GEN;NAV;-;ukey;X' >"$trajector/Data/MINE.CSV"
    run "$trajector/Uninstall.exe" /S || fail "the uninstaller ends with $?"
    wait_for_the_uninstaller
    diff <(printf '%s\n./Tools/Trajector/Data/MINE.CSV\n' "$before" | sort) \
        <(files_below "$simulator") || fail 'other files are left than the user has'
    [ ! -e "$trajector/maps" ] || fail 'empty folders are left'
}

if [ "${7:-}" = inside ]; then
    install_and_remove
else
    lay_out_payload
    make_installer
    "$sources/tests/checks/with_wine.sh" "$wine" "$folder/wine" "${BASH_SOURCE[0]}" "$@" inside
fi
