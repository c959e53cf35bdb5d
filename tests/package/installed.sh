#!/usr/bin/env bash
# The component "program", installed into a simulator's folder Tools/Trajector, starts there in both languages.
# shellcheck disable=SC1091,SC2154
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

make_simulator
trajector=$simulator/Tools/Trajector
"$cmake_programs/cmake" --install "$build" --component program --prefix "$trajector" >/dev/null
[ -d "$trajector/Data" ] || fail 'no folder for update files'
[ ! -e "$trajector/flysim" ] || fail 'the component holds what was not asked for'
look_at_manual "$trajector/manual"
grep -q '^var mapSettings' "$trajector/maps/service.js" || fail 'no settings of the map'
echo '// mine' >"$trajector/maps/service.js"
"$cmake_programs/cmake" --install "$build" --component program --prefix "$trajector" >/dev/null
[ "$(cat "$trajector/maps/service.js")" = '// mine' ] || fail "the user's settings of the map are lost"
cd "$trajector"
start_and_look C.UTF-8 ./ZephanTrajector
start_and_look fr_FR.UTF-8 ./ZephanTrajector
