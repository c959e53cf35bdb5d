#!/usr/bin/env bash
# Sets up what building, running and testing need. Asks nothing; a second call finds everything there and is quick.
#
#   scripts/setup.sh             what ./run.sh and ./test.sh need
#   scripts/setup.sh --checks    and what .ci/run and bench/run need besides
#
# With apt-get (Debian, Ubuntu) it installs what is missing. Elsewhere it names what is wanted and goes on: the build
# then finds the same things under their local names, or says what it misses.
set -euo pipefail

# Debian package | what stands for it when it comes from elsewhere: a command, or pc: and a pkg-config module.
# A package with nothing behind the bar is looked for by its name alone.
wanted_always='
ca-certificates|
g++|c++
cmake|cmake
ninja-build|ninja
ccache|ccache
lld|ld.lld
qtbase5-dev|pc:Qt5Widgets
libqt5webkit5-dev|pc:Qt5WebKitWidgets
libqt5sql5-sqlite|
qttools5-dev|
qttools5-dev-tools|
nodejs|node
npm|npm
xvfb|Xvfb
xauth|xauth
fonts-dejavu-core|
fonts-liberation|
'
wanted_for_checks='
git|git
clang|clang++
libclang-rt-dev|
llvm|llvm-symbolizer
clang-format|clang-format
clang-tidy|clang-tidy
shellcheck|shellcheck
sqlite3|sqlite3
chromium|chromium
g++-mingw-w64-x86-64-posix|x86_64-w64-mingw32-g++-posix
wine|wine
dpkg-dev|dpkg-shlibdeps
file|file
lintian|lintian
desktop-file-utils|desktop-file-validate
nsis|makensis
'

say() { printf '%s\n' "set-up: $*"; }

stands_for_it() {
    case $1 in
        '') return 1 ;;
        pc:*) command -v pkg-config >/dev/null && pkg-config --exists "${1#pc:}" ;;
        *) command -v "$1" >/dev/null ;;
    esac
}

debian_has() {
    command -v dpkg-query >/dev/null &&
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints the packages of the list on standard input that are neither installed nor stood for.
missing_packages() {
    local package substitute
    while IFS='|' read -r package substitute; do
        [ -n "$package" ] || continue
        stands_for_it "$substitute" || debian_has "$package" || printf '%s ' "$package"
    done
}

# By a sudo that asks for no password, unless it is root already.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo -n "$@"
    fi
}

may_become_root() {
    if ! as_root true </dev/null 2>/dev/null; then
        say 'not root, and no sudo that makes it root without a password'
        return 1
    fi
}

install_packages() {
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o Dpkg::Use-Pty=0)
    say "installing, which takes a few minutes: $*"
    # Old package lists may still do, so a failing update is only told.
    as_root "${apt[@]}" update </dev/null >/dev/null || say 'the package lists could not be brought up to date'
    as_root "${apt[@]}" install --no-install-recommends "$@" </dev/null >/dev/null
}

install_with_apt() {
    may_become_root && install_packages "$@" && return
    say 'packages are missing; call again after this, as root or with sudo:'
    say 'apt-get update'
    say "apt-get install --no-install-recommends $*"
    return 1
}

set_up_packages() {
    local missing
    read -r -a missing <<<"$(printf '%s' "$1" | missing_packages)" || true
    [ "${#missing[@]}" -gt 0 ] || return 0
    if command -v apt-get >/dev/null; then
        install_with_apt "${missing[@]}"
    else
        say "no apt-get here; wanted, under the names that Debian gives them: ${missing[*]}"
    fi
}

wanted=$wanted_always
[ "${1:-}" != --checks ] || wanted+=$wanted_for_checks
set_up_packages "$wanted"
