#!/usr/bin/env bash
# floors.sh refuses every include that leads upwards, from each room into each higher one, and takes every other.
set -euo pipefail

floors=$(dirname "$(realpath "${BASH_SOURCE[0]}")")/floors.sh
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
cd "$house"

# A file without its ending for each room, behind its floor.
rooms='1 ZephanCommon/common
2 source/application/application
3 source/flightplan/flightplan
3 source/map/map
3 source/simulator/simulator
3 source/External
4 source/editing/editing
5 source/mainwindow/window
6 source/main
7 tools/drawicons/drawicons
7 tools/flysim/flysim
7 tools/makedemo/makedemo
8 tests/support/support
9 tests/page/page
9 tools/soak/soak
9 tools/tour/tour
9 bench/bench
9 fuzz/support/fuzz'

has_header() { [ "$1" != source/main ]; }

while read -r _ room; do
    mkdir -p "$(dirname "$room")"
    : >"$room.cpp"
    if has_header "$room"; then : >"$room.h"; fi
done <<<"$rooms"
mkdir -p tests/checks

while read -r floor room; do
    line=0
    while read -r other_floor other; do
        has_header "$other" || continue
        line=$((line + 1))
        printf '#include "%s"\n' "$(basename "$other").h" >>"$room.cpp"
        [ "$other_floor" -le "$floor" ] ||
            echo "$room.cpp:$line: floor $floor includes $other.h of floor $other_floor" >>expected
    done <<<"$rooms"
done <<<"$rooms"

complaints() { "$floors" "$house" || true; }

[ "$(wc -l <expected)" -gt 100 ]
diff <(sort expected) <(complaints | sort)

# Roundabout ways up: between angles, with a path, by a form. And what has no place at all.
find . -name '*.cpp' -exec truncate -s 0 {} +
"$floors" "$house"
printf '#include <window.h>\n#include "../mainwindow/window.h"\n' >source/map/map.cpp
: >source/mainwindow/dialog.ui
echo '#include "ui_dialog.h"' >source/editing/editing.cpp
: >source/attic.cpp
: >source/application/common.h
diff - <(complaints | sort) <<'END'
source/application/common.h: has the name of ZephanCommon/common.h
source/attic.cpp: stands on no floor
source/editing/editing.cpp:1: floor 4 includes source/mainwindow/dialog.ui of floor 5
source/map/map.cpp:1: floor 3 includes source/mainwindow/window.h of floor 5
source/map/map.cpp:2: floor 3 includes source/mainwindow/window.h of floor 5
END
