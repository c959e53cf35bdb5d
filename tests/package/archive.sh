#!/usr/bin/env bash
# The archive, unpacked in a simulator's folder, has everything in place there and nothing anywhere else.
# shellcheck disable=SC1091,SC2154
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$cmake_programs/cpack" --config "$build/CPackConfig.cmake" -G TGZ -B "$folder/packages" >"$folder/log" ||
    { cat "$folder/log" && fail 'cpack'; }
archive=$(echo "$folder"/packages/*.tar.gz)
(cd "$folder/packages" && sha256sum --quiet -c ./*.sha256)
! tar tzf "$archive" | grep -v '^Tools/\($\|Trajector/\)' || fail 'the archive holds these outside of Tools/Trajector'

make_simulator
tar xzf "$archive" -C "$simulator"
trajector=$simulator/Tools/Trajector
[ -d "$trajector/Data" ] || fail 'no folder for update files'
grep -q Leaflet "$trajector/COPYRIGHT.txt" || fail 'no word of the owners'
grep -q 'BSD 2-Clause' "$trajector/COPYRIGHT.txt" || fail 'no licence of the map library'
"$trajector/flysim" --help >/dev/null
look_at_manual "$trajector/manual"
cd "$trajector"
start_and_look C.UTF-8 ./ZephanTrajector
