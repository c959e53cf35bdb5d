# What the tests of the packages share; sourced by them with their own arguments.
# shellcheck shell=bash
# shellcheck disable=SC2034 # the arguments are for the tests

cmake_programs=$1
build=$2
witness=$3
folder=$4
sources=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
simulator=$folder/simulator

# A test that calls itself once more adds the word "inside".
if [ "${!#}" != inside ]; then
    rm -rf "$folder"
    mkdir -p "$folder"
    trap 'rm -rf "$folder"' EXIT
fi

fail() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}

# A made-up simulator without the program, whose work folder has been chosen before.
make_simulator() {
    QT_QPA_PLATFORM=offscreen "$build/bin/makedemo" "$simulator" >/dev/null
    mkdir -p "$simulator/Tools/Trajector"
    printf '[directory]\ndirWork=%s/Work\n' "$simulator" >"$simulator/Tools/Trajector/trajector.ini"
}

# start_and_look LOCALE COMMAND...: has the program's window open and close again, and looks at what it found.
start_and_look() {
    local locale=$1 language=en dock='Flight plan' seen=$folder/seen page
    shift
    [[ $locale != fr* ]] || { language=fr && dock='Plan de vol'; }
    rm -f "$seen"
    env -u LANGUAGE LC_ALL="$locale" QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=zephanwitness \
        QT_PLUGIN_PATH="$witness" ZEPHAN_WITNESS="$seen" XDG_CONFIG_HOME="$folder/config" \
        timeout -s KILL 240 "$@" >"$folder/log" 2>&1 </dev/null || { cat "$folder/log" && fail "$* ended with $?"; }
    cat "$seen"
    page=$simulator/Tools/Trajector/gm_trajector_$language.html
    grep -qxF "page $page" "$seen" || fail "the page is not $page"
    grep -qxF "dock $dock" "$seen" || fail "the interface is in another language"
    grep -qxF 'incomplete 0' "$seen" || fail 'a file of the page is missing'
    # Centre and zoom come from the page when the window closes: 0 without one.
    grep -qxF 'zoom=6' "$simulator/Tools/Trajector/trajector.ini" || fail 'the settings were not written beside the program'
}

# look_at_manual FOLDER: the manual in both languages, with every picture that it shows.
look_at_manual() {
    local language picture
    for language in fr en; do
        [ -s "$1/manual.$language.md" ] || fail "no manual.$language.md in $1"
        while read -r picture; do
            # Pictures that are not in the sources yet cannot be installed.
            [ ! -e "$sources/docs/$picture" ] || [ -s "$1/$picture" ] || fail "the manual misses $picture"
        done < <(grep -o '](images/[^)]*)' "$1/manual.$language.md" | sed 's/^](//; s/)$//')
    done
}
