#!/usr/bin/env bash
# The package for Debian: what dpkg would install of it, and a start by its launcher in a simulator's folder.
# shellcheck disable=SC1091,SC2154
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$cmake_programs/cpack" --config "$build/CPackConfig.cmake" -G DEB -B "$folder/packages" >"$folder/log" ||
    { cat "$folder/log" && fail 'cpack'; }
package=$(echo "$folder"/packages/*.deb)

# Without dpkg-shlibdeps a package would have no dependencies and nobody be told.
depends=$(dpkg-deb -f "$package" Depends)
for wanted in libc6 libqt5core5a libqt5widgets5 libqt5webkit5 libqt5sql5 libqt5sql5-sqlite; do
    grep -qE "(^|[ ,])$wanted([ ,]|\$)" <<<"$depends" || fail "does not depend on $wanted: $depends"
done

installed=$folder/root
dpkg-deb -x "$package" "$installed"
cd "$installed/usr"
for file in bin/zephan-trajector bin/flysim lib/zephan-trajector/ZephanTrajector share/applications/zephan-trajector.desktop \
    share/icons/hicolor/{16x16,48x48,256x256}/apps/zephan-trajector.png share/man/man1/{zephan-trajector,flysim}.1.gz \
    share/doc/zephan-trajector/{copyright,changelog.gz}; do
    [ -s "$file" ] || fail "no $file"
done
look_at_manual share/doc/zephan-trajector/manual
if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate share/applications/zephan-trajector.desktop
fi
if command -v lintian >/dev/null; then
    # Warnings and errors both; only a package that is made on the spot may be packed by root.
    lintian --fail-on error,warning --allow-root "$package"
fi

launcher=$installed/usr/bin/zephan-trajector
remembered=$folder/config/zephan-trajector/launcher.ini
make_simulator
trajector=$simulator/Tools/Trajector
start_and_look C.UTF-8 "$launcher" "$simulator"
cmp "$trajector/ZephanTrajector" "$installed/usr/lib/zephan-trajector/ZephanTrajector"
grep -qxF "simulator=$simulator" "$remembered" || fail 'the simulator is not remembered'

# The second time nothing is named or asked, what was damaged is mended, and what is the user's stays.
echo 'not a page' >"$trajector/maps/page/map.js"
echo 'GEN;NAV;-;ukey;X' >"$trajector/Data/MINE.CSV"
start_and_look fr_FR.UTF-8 "$launcher"
grep -qxF 'GEN;NAV;-;ukey;X' "$trajector/Data/MINE.CSV" || fail 'an update file of the user was changed'

# With no display there is a word and no program.
if env -u DISPLAY -u WAYLAND_DISPLAY LC_ALL=C.UTF-8 "$launcher" "$simulator" 2>"$folder/log"; then
    fail 'started without a display'
fi
grep -q 'needs a display' "$folder/log" || { cat "$folder/log" && fail 'no word about the display'; }
