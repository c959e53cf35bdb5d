#!/usr/bin/env bash
# Retakes the pictures of the user's manual in both languages: a tour of the program on a virtual display.
#
#   scripts/manual_pictures.sh [BUILD]     BUILD is build/release unless told
#
# The pictures show paths. So the simulator lies in /opt/AeoZephan, in a mount namespace of the tour's own: nothing of
# the machine is in the pictures, and nothing is left behind.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$root/build/release}" && pwd)
images=$root/docs/images/manual

if [ "${ZEPHAN_MANUAL_INSIDE:-}" != yes ]; then
    export ZEPHAN_MANUAL_INSIDE=yes
    namespaces=--mount
    [ "$(id -u)" = 0 ] || namespaces='--mount --map-root-user'
    # shellcheck disable=SC2086 # two options, or one
    exec unshare $namespaces "${BASH_SOURCE[0]}" "$build"
fi

mount -t tmpfs none /dev/shm
mount -t tmpfs none /opt

# take LANGUAGE LOCALE: the tour beside a fresh simulator.
take() {
    local simulator=/opt/AeoZephan
    local program=$simulator/Tools/Trajector
    rm -rf $simulator
    QT_QPA_PLATFORM=offscreen "$build/bin/makedemo" $simulator
    cmake --install "$build" --component program --prefix $program >/dev/null
    # The tour stands where the program does: messages tell that folder.
    cp "$build/bin/tour" "$build/bin/flysim" $program
    HOME=$simulator LC_ALL=$2 LANGUAGE=$1 QT_QPA_PLATFORM=xcb QT_LOGGING_RULES='*.debug=false' \
        xvfb-run -a -s '-screen 0 1400x1200x24' $program/tour --manual "$images/$1" $simulator >/dev/null
}

take fr fr_FR.UTF-8
take en en_GB.UTF-8
du -sh "$images/fr" "$images/en"
