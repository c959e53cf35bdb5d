#!/usr/bin/env bash
# Sets up what is missing, builds, puts the program into the simulator's folder Tools/Trajector and starts it there.
#
#   ./run.sh              beside a fresh demonstration simulator, made under build/
#   ./run.sh SIMULATOR    beside the simulator in that folder
#
# With no display it takes a tour of the program on a virtual one instead, always beside a demonstration simulator,
# and prints where the pictures and the written flight plan, situation and update files are.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$root/build/release

[ $# -le 1 ] || { echo 'usage: ./run.sh [SIMULATOR]' >&2; exit 2; }
simulator=
if [ $# -eq 1 ]; then
    simulator=$(cd "$1" && pwd) || { echo "run.sh: no such folder: $1" >&2; exit 2; }
    [ -f "$simulator/AeoZephan.exe" ] ||
        echo "run.sh: no AeoZephan.exe in $simulator; the program will ask where the simulator is"
fi

build_program() {
    "$root/scripts/setup.sh"
    (cd "$root" && cmake --preset release -DBUILD_TESTING=ON)
    (cd "$root" && cmake --build --preset release -j "$(getconf _NPROCESSORS_ONLN)" \
        --target ZephanTrajector makedemo tour flysim) || {
        echo 'run.sh: the build has failed; what did is above. If npm could not fetch the packages of the map, look' \
            'after the network, then call again: it goes on where it stopped.' >&2
        return 1
    }
}

make_demonstration() {
    simulator=$build/demonstration
    rm -rf "$simulator"
    QT_QPA_PLATFORM=offscreen "$build/bin/makedemo" "$simulator"
}

# The program takes the simulator's root for two folders above the one that it is started in.
install_program() {
    cmake --install "$build" --component program --prefix "$simulator/Tools/Trajector"
}

has_display() { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }

take_tour() {
    echo 'No display: a tour of the program on a virtual one.'
    # For the tour alone: a shell complains about a language that the machine has not got, Qt does not.
    xvfb-run -a -s '-screen 0 1400x1200x24' env QT_QPA_PLATFORM=xcb LC_ALL=fr_FR.UTF-8 LANGUAGE=fr \
        QT_LOGGING_RULES='*.debug=false' "$build/bin/tour" "$simulator" "$build/tour"
}

build_program
if [ -n "$simulator" ]; then
    install_program
    has_display || echo "The program is in $simulator/Tools/Trajector."
fi
if [ -z "$simulator" ] || ! has_display; then
    make_demonstration
    install_program
fi

has_display || { take_tour; exit; }
cd "$simulator/Tools/Trajector"
exec ./ZephanTrajector
