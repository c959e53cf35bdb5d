#!/usr/bin/env bash
# The health of the files under version control: LF, no blank at the end of a line, a newline at the end of the file,
# nothing over a megabyte. Files that .gitattributes exempts with "-text" or "binary" are judged by their size alone:
# some test data are broken on purpose. Where it says "whitespace=-blank-at-eol", a line may end in blanks. Long sources
# are only told. A test's wait for a condition names its limit: Qt's own five seconds are short on a busy machine.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
largest_bytes=1000000
bad=0

complain() {
    printf '%s\n' "$*"
    bad=1
}

may_end_in_blanks() {
    [ "$(git check-attr whitespace -- "$1" | sed 's/.*: //')" = -blank-at-eol ]
}

check_text() {
    local file=$1
    if grep -q $'\r' "$file"; then complain "$file: has a carriage return"; fi
    if grep -qE '[[:blank:]]+$' "$file" && ! may_end_in_blanks "$file"; then
        complain "$file:$(grep -nE '[[:blank:]]+$' "$file" | head -n 1 | cut -d: -f1): blanks at the end of the line"
    fi
    if [ -n "$(tail -c 1 "$file")" ]; then complain "$file: no newline at the end"; fi
}

tell_long_source() {
    local file=$1 limit=$2 lines
    lines=$(wc -l <"$file")
    if [ "$lines" -ge "$limit" ]; then printf '%s: %d lines, more than is easily read (told, not refused)\n' "$file" "$lines"; fi
}

# git tells the line ends in the working tree (w/...) and the attributes of each file; "-text" stands for bytes.
while IFS=$'\t' read -r kinds file; do
    [ -s "$file" ] || continue
    if [ "$(wc -c <"$file")" -gt $largest_bytes ]; then complain "$file: over $largest_bytes bytes"; fi
    if [[ $kinds != *-text* ]]; then check_text "$file"; fi
    if [[ $file == tests/*.cpp ]] && grep -qE 'QTRY_(VERIFY|COMPARE)\(' "$file"; then complain "$file: a wait without a limit of its own"; fi
    case $file in
        *.cpp) tell_long_source "$file" 400 ;;
        *.h) tell_long_source "$file" 150 ;;
    esac
done < <(git ls-files --eol)

exit $bad
