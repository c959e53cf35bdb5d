#!/usr/bin/env bash
# The pages about the project name what is there, and the page of the house names all of its rooms. Says what is not so.
#
#   pages.sh TARGETS [ROOT]    TARGETS: a file with each CMake target and its folder, told from ROOT, on a line
set -euo pipefail

targets=$(realpath "$1")
cd "${2:-$(dirname "${BASH_SOURCE[0]}")/../..}"
house=docs/architecture.md
bad=0

complain() {
    printf '%s\n' "$*"
    bad=1
}

# The files under version control; of a tree without it, all that is not made.
files=$(git ls-files 2>/dev/null | grep . ||
    find . \( -path ./build -o -path ./node_modules -o -path ./.git \) -prune -o -type f -print | sed 's,^\./,,')
ours() { grep -E "$1" <<<"$files" || true; }
# The folders in one, "." for the top.
folders_in() {
    local below
    [ "$1" = . ] && below= || below=$1/
    ours "^${below}[^/]+/" | sed "s,^\(${below}[^/]*\)/.*,\1," | sort -u
}

# The texts of a page in backticks, and the words of its pictures.
named() { awk -F '`' '/^ *```/ { fenced = !fenced; next } !fenced { for (i = 2; i < NF; i += 2) print $i }' "$1" | sort -u; }
drawn() { awk '/^ *```/ { fenced = !fenced; next } fenced' "$1" | tr -s '[:blank:],;' '\n' | sort -u; }

is_target() { cut -d' ' -f1 "$targets" | grep -qxE "$1"; }

links_lead_somewhere() {
    local page link
    while read -r page; do
        while read -r link; do
            [ -e "$(dirname "$page")/$link" ] || complain "$page: no $link"
        done < <(grep -oE '\]\([^)]+\)' "$page" | sed 's/^](//; s/)$//; s/#.*//' | grep -vE '^([a-z]+:|$)' | sort -u)
    done < <(ours '\.md$')
}

tests_are_there() {
    local page test
    while read -r page; do
        while read -r test; do
            is_target "$test" || complain "$page: no test $test"
        done < <(named "$page" | grep -xE '(tst|bench)_[a-z0-9_]+')
    done < <(ours '\.md$')
}

# On the page of the house and the one for those who work in it, a text with a slash is a path of the tree.
paths_are_there() {
    local page text
    for page in $house CONTRIBUTING.md; do
        while read -r text; do
            [ -e "$text" ] || complain "$page: no $text"
        done < <(
            named "$page" | grep -xE '[A-Za-z0-9._-]*(/[A-Za-z0-9._-]+)*/?' | grep /
            drawn "$page" | grep -xE '(source|ZephanCommon|maps|tests|tools|docs|scripts)/[A-Za-z0-9._/-]*'
        )
        while read -r text; do
            [ -n "$(ours "(^|/)${text//./\\.}\$")" ] || complain "$page: no file $text"
        done < <(named "$page" | grep -xE '[A-Za-z][A-Za-z0-9_.-]*\.(awk|cmake|cpp|h|html|js|json|md|qrc|sh|ts|txt|ui)')
    done
}

# The rows of the table of targets: NAME or NAME, NAME.
told_targets() {
    sed -n '/^## Targets/,/^## [^T]/p' $house | sed -n 's/^| \(`[^|]*\)|.*/\1/p' | tr -d '`,' | tr -s ' ' '\n' | grep .
}

targets_are_told() {
    local target folder
    while read -r target; do
        is_target "$(printf '%s' "$target" | sed 's/\*/.*/')" || complain "$house: no target $target"
    done < <(told_targets)
    while read -r target folder; do
        case $folder/ in tests/*) continue ;; esac
        case $target in bench_*) continue ;; esac
        told_targets | grep -qxF "$target" || complain "$house: does not tell the target $target of $folder/"
    done <"$targets"
}

rooms_are_told() {
    local room folder text
    text=$(cat $house)
    while read -r room; do
        case $text in
            *[\`\ ]"$room/"[\`\ ]* | *[\`\ ]"$room/"$'\n'*) ;;
            *) complain "$house: does not tell $room/" ;;
        esac
    done < <(for folder in . docs maps source tests tools; do folders_in $folder; done)
    while read -r room; do
        grep -q "^|.*\`$(basename "$room")\`.*|" $house || complain "$house: does not tell $room"
    done < <(ours '^source/mainwindow/.*\.cpp$')
}

# The newest entry is of the version that is built.
changes_are_of_this_version() {
    local version
    version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    [ "$(sed -n 's/^## \[\(.*\)\].*/\1/p' CHANGELOG.md | head -n 1)" = "$version" ] ||
        complain "CHANGELOG.md: does not begin with version $version"
}

links_lead_somewhere
changes_are_of_this_version
tests_are_there
paths_are_there
targets_are_told
rooms_are_told
exit $bad
