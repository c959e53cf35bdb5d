#!/usr/bin/env bash
# Runs a program on an X server of its own, so that window tests run side by side and no window covers another's.
#
#   on_own_display.sh PROGRAM [ARGUMENT...]
#
# The server takes a free display, tells its number once it is ready, and ends with the program, however that ends.
set -euo pipefail

exec {told}< <(exec setpriv --pdeathsig TERM \
    Xvfb -displayfd 1 -screen 0 1400x1200x24 -nolisten tcp 2>/dev/null </dev/null)
if ! read -r display <&"$told"; then
    printf '%s\n' 'no X server could be started' >&2
    exit 1
fi
exec {told}<&-
export DISPLAY=:$display
# In the place of this shell: the server is then the program's child, and whoever ends the program ends both.
exec "$@"
