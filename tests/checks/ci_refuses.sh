#!/usr/bin/env bash
# .ci/run passes only when each lane has come to its end and none of its checks has failed.
set -euo pipefail

run=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/.ci/run
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
mkdir "$house/.ci"

# Its own beginning and end around other lanes.
{
    sed '/^waiting_1()/,$d' "$run"
    cat <<'LANES'
passing() { check passing true; }
failing() { check failing false; check passing true; }
ending() {
    check passing true
    mktemp() { return 1; } # no room for the next log
    check 'never run' true
}
side_by_side "$1" "$2"
LANES
    sed -n '/^if .*\/failed" \]/,$p' "$run"
} >"$house/.ci/run"

last_line() { bash "$house/.ci/run" "$@" 2>/dev/null | tail -n 1; }

diff <(echo 'All checks passed.') <(last_line passing passing)
diff <(echo 'FAILED: failing') <(last_line passing failing)
diff <(echo 'FAILED: checks that were not run') <(last_line ending passing)
diff <(echo 'FAILED: failing,checks that were not run') <(last_line ending failing)
! bash "$house/.ci/run" passing ending >/dev/null 2>&1
