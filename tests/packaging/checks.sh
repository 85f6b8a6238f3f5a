# shellcheck shell=bash
# For the scripts of this folder: cases with names, and comparisons that go on after a failure.
# A script ends with "all_cases".
failures=0

# begin NAME: what the checks until the next begin protect.
begin() { case_name=$1; }

fail() {
    echo "FAIL: $case_name: $*"
    failures=$((failures + 1))
}

# same WHAT EXPECTED GOT
same() {
    [ "$2" = "$3" ] && return
    fail "$1"
    diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") | sed 's/^/    /'
}

# holds COMMAND...: the command succeeds. (Write "holds ! COMMAND" for one that must not.)
holds() {
    if [ "$1" = "!" ]; then
        shift
        ! "$@" || fail "must not hold: $*"
    else
        "$@" || fail "must hold: $*"
    fi
}

# files FOLDER: every file and link below it, sorted.
files() { (cd "$1" && find . ! -type d | sed 's|^\./||' | LC_ALL=C sort); }

all_cases() {
    [ "$failures" -eq 0 ] && echo "all cases hold" && exit 0
    echo "$failures checks failed"
    exit 1
}
