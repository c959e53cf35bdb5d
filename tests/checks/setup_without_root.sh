#!/usr/bin/env bash
# Whoever can become root by no means is told so, and what to type, before anything is tried.
#
#   setup_without_root.sh
set -euo pipefail

setup=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/scripts/setup.sh
fail() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}

# A system without sudo and without all that is wanted; its apt-get would be called in vain.
programs=$(mktemp -d)
trap 'rm -rf "$programs"' EXIT
chmod 755 "$programs"
for program in bash env id true; do
    ln -s "$(type -P "$program")" "$programs/"
done
printf '#!%s\necho apt-get was called >&2\nexit 1\n' "$programs/bash" >"$programs/apt-get"
chmod 755 "$programs/apt-get"

somebody=()
if [ "$(id -u)" -eq 0 ]; then
    somebody=("$(type -P setpriv)" --reuid 65534 --regid 65534 --clear-groups)
fi
# By standard input: the sources may lie where only root may read.
if told=$("${somebody[@]}" env -i PATH="$programs" bash -s <"$setup" 2>&1); then
    fail "it is content: $told"
fi
grep -qx 'set-up: not root, and no sudo .*' <<<"$told" || fail "no word of root: $told"
grep -qx 'set-up: apt-get update' <<<"$told" || fail "no lists: $told"
grep -qx 'set-up: apt-get install --no-install-recommends .*g++ .*' <<<"$told" || fail "no packages: $told"
! grep -q 'installing\|was called' <<<"$told" || fail "it tries all the same: $told"
