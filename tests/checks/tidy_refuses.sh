#!/usr/bin/env bash
# tidy.js finds what is wrong in any source of a group, and nothing in sources that merely use the same names.
set -euo pipefail

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
cd "$house"
mkdir -p scripts source tests build
cp "$project/scripts/tidy.js" scripts
cp "$project/.clang-tidy" .

cat >source/lamp.cpp <<'END'
namespace {
int length() { return 1; }
}
int lamp() { return length(); }
END
sed 's/lamp/wall/; s/1/2/' source/lamp.cpp >source/wall.cpp
for name in a b c d; do
    touch "build/tst_$name.moc"
    cat >"tests/tst_$name.cpp" <<END
#include <string>
#include <vector>
static int height(const std::string& text) { return int(text.size()); }
int main() { return height("$name"); }
#include "tst_$name.moc"
END
done

separator='['
for file in source/*.cpp tests/*.cpp; do
    printf '%s{"directory":"%s","file":"%s","command":"clang++ -std=c++17 -I%s -o %s.o -c %s"}' \
        "$separator" "$house/build" "$house/$file" "$house/build" "$file" "$house/$file"
    separator=,
done >build/compile_commands.json
printf ']' >>build/compile_commands.json

# What is told: file, line and check of each finding, in order.
told() {
    node scripts/tidy.js build 2 2>&1 | sed 's/\x1b\[[0-9;]*m//g' |
        sed -nE "s#^$house/([^:]*:[0-9]+):.*\[([^],]*).*#\1 \2#p; /^[0-9]+ sources/p" | sort -u
}

passes() { node scripts/tidy.js build >/dev/null 2>&1; }

diff - <(told) <<'END'
6 sources in 2 groups
END
passes

echo 'int* shade() { return 0; }' >>source/wall.cpp
diff - <(told) <<'END'
6 sources in 2 groups
source/wall.cpp:5 modernize-use-nullptr
END
sed -i '$d' source/wall.cpp

# Each alone, for one may not be found because of another. finds LINE CHECK GROUPS: the line stands fourth in a test.
finds() {
    sed -i "3s/\$/\n$1/" tests/tst_c.cpp
    diff - <(told) <<END
6 sources in ${3:-2} groups
tests/tst_c.cpp:4 $2
END
    if passes; then exit 1; fi
    sed -i 4d tests/tst_c.cpp
}
finds 'using std::vector;' misc-unused-using-decls 3
finds 'int shade(std::string text) { return int(text.size()); }' performance-unnecessary-value-param
finds 'int light(int many) { int* lamp = nullptr; return many > 3 ? *lamp : 0; }' clang-analyzer-core.NullDereference
finds 'void nothing() { return 1; }' clang-diagnostic-return-type
passes

# Nothing to read is no pass.
printf '[]' >build/compile_commands.json
if passes; then exit 1; fi
