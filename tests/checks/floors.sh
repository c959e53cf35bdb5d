#!/usr/bin/env bash
# A file includes files of its own floor or of a lower one, never of a higher one. Says which includes do otherwise.
#
#   floors.sh [ROOT]    ROOT: the folder that holds ZephanCommon/ and source/
set -euo pipefail

cd "${1:-$(dirname "${BASH_SOURCE[0]}")/../..}"

# Trees to be refused stand among the tests, below checks/.
find ZephanCommon source tools tests bench fuzz -path tests/checks -prune -o \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.ui' \) -print | sort | awk '
    # The floor of a file of ours, the lowest is 1.
    function floor(path) {
        if (path ~ /^ZephanCommon\//)                              return 1
        if (path ~ /^source\/application\//)                       return 2
        if (path ~ /^source\/(flightplan|map|simulator)\//)        return 3
        if (path ~ /^source\/External\./)                          return 3
        if (path ~ /^source\/editing\//)                           return 4
        if (path ~ /^source\/mainwindow\//)                        return 5
        if (path == "source/main.cpp")                             return 6
        if (path ~ /^tools\/(drawicons|flysim|launcher|makedemo)\//)        return 7
        if (path ~ /^tests\/support\//)                            return 8
        if (path ~ /^(tools\/(soak|tour)|tests\/[a-z]+|bench|fuzz)\//) return 9
        return 0
    }
    function file_name(path) { sub(/.*\//, "", path); return path }

    # The name under which a file is included: a form comes as the header that is made of it. Empty for a source.
    function header(path,    name) {
        name = file_name(path)
        if (name ~ /\.ui$/) { sub(/\.ui$/, ".h", name); return "ui_" name }
        return name ~ /\.h$/ ? name : ""
    }

    {
        paths[NR] = $0
        if (floor($0) == 0) { print $0 ": stands on no floor"; bad = 1 }
        # Headers are included by their bare names, which are unique in the house.
        name = header($0)
        if (name != "") {
            if (name in homes) { print $0 ": has the name of " homes[name]; bad = 1 }
            homes[name] = $0
        }
    }

    END {
        for (i = 1; i <= NR; ++i) {
            line_number = 0
            while ((getline line < paths[i]) > 0) {
                ++line_number
                if (line !~ /^[ \t]*#[ \t]*include[ \t]*["<]/) continue
                split(line, parts, /["<>]/)
                home = homes[file_name(parts[2])]
                if (home != "" && floor(home) > floor(paths[i])) {
                    printf "%s:%d: floor %d includes %s of floor %d\n",
                           paths[i], line_number, floor(paths[i]), home, floor(home)
                    bad = 1
                }
            }
            close(paths[i])
        }
        exit bad
    }'
