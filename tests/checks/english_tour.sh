#!/usr/bin/env bash
# The tour in English meets no French text, in windows, boxes, tool tips and on the map page. It leaves no shared block
# behind, which would be refused to another user.
#
#   english_tour.sh FOLDER_OF_PROGRAMS
set -euo pipefail

programs=$1
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

block=/dev/shm/AeoZephanToNavigation
is_there() { [ -e "$block" ] && echo there || echo missing; }
before=$(is_there)

simulator=$folder/AeoZephan
"$programs/makedemo" "$simulator"
cp "$programs/zephantrajector_en.qm" "$simulator/Tools/Trajector"
LC_ALL=en_GB.UTF-8 LANGUAGE=en QT_LOGGING_RULES='*.debug=false' "$programs/tour" --rest 20 \
    --english resources/translations/zephantrajector_en.ts --kept tests/checks/kept_french.txt "$simulator"
[ "$(is_there)" = "$before" ] || { echo "FAILED: the shared block was $before and is $(is_there)" && exit 1; }
