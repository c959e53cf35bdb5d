#!/usr/bin/env bash
# Sets up what is missing, builds with the preset "dev" and runs every test.
# ZEPHAN_WERROR=ON ./test.sh makes warnings errors, as CI does.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
jobs=$(getconf _NPROCESSORS_ONLN)

scripts/setup.sh
cmake --preset dev -DZEPHAN_WERROR="${ZEPHAN_WERROR:-OFF}"
cmake --build --preset dev -j "$jobs"

# Windows and pages wait more than they compute: more of them than there are cores.
if ctest --preset dev -j $((jobs + 1)) --no-tests=error; then
    printf '\nAll tests passed.\n'
else
    printf '\nSome tests FAILED; their output stands above.\n'
    exit 1
fi
