#!/usr/bin/env bash
# What hosts of the ELF library are compiled to rely on: sizes, places of members, virtual slots,
# what functions return. Which functions there are, with their parameters, is exports.sh's.
#
#   layout.sh list LIBRARY HEADERS VERSION              prints it, below the version
#   layout.sh compare LIBRARY HEADERS VERSION BASELINE  fails unless it is that of BASELINE
#   layout.sh update LIBRARY HEADERS VERSION BASELINE   writes BASELINE anew; refuses where old
#                                                       hosts would break and VERSION says nothing
#
# The library must be compiled with debug information. Ends with 77 where abidw is missing.
set -euo pipefail
export LC_ALL=C

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

list() {
    local xml=$scratch/library.xml
    abidw --no-corpus-path --no-show-locs --no-comp-dir-path --no-elf-needed \
        --drop-private-types --headers-dir "$2" --out-file "$xml" "$1"
    printf 'version %s\n' "$3"
    awk -f "$(dirname "$0")/layout.awk" "$xml" "$xml" | "${CXXFILT:-c++filt}" | sort -u -V
}

# changes BASELINE NEW: a line each, marked "breaks" or "adds". What a class that was there
# before gains breaks the classes that hosts derive from it; new classes and functions break
# nothing.
changes() {
    awk '
        function owner(line) { return substr(line, 1, index(line, ": ") - 1) }
        /^version / { next }
        FNR == NR {
            before[$0] = 1
            known[owner($0)] = 1
            next
        }
        {
            now[$0] = 1
            if (!($0 in before))
                print (owner($0) in known ? "breaks: + " : "adds: + ") $0
        }
        END {
            for (line in before)
                if (!(line in now))
                    print "breaks: - " line
        }' "$1" "$2" | sort -k 3
}

version_of() { sed -n '1s/^version //p' "$1"; }

# judge BASELINE NEW: what to do about the changes, in $advice; 0 if there are none, 1 if they
# go with the version, 2 if they do not.
judge() {
    local old new
    found=$(changes "$1" "$2")
    old=$(version_of "$1") new=$(version_of "$2")
    if [[ -z $found && $old == "$new" ]]; then
        return 0
    elif [[ ${old%%.*} == "${new%%.*}" ]] && grep -q '^breaks' <<<"$found"; then
        advice="Hosts that were compiled for $old would break: raise the major version in CMakeLists.txt, then: ./dev abi"
        return 2
    fi
    advice="If that is meant: ./dev abi"
    return 1
}

compare() {
    local new=$scratch/new status=0
    list "$1" "$2" "$3" >"$new"
    judge "$4" "$new" || status=$?
    ((status == 0)) || fail "$(head -n 60 <<<"$found")" \
        "The binary interface has changed against $(basename "$4"). $advice"
}

update() {
    local new=$scratch/new status=0
    list "$1" "$2" "$3" >"$new"
    if [[ -e $4 ]]; then
        judge "$4" "$new" || status=$?
        ((status < 2)) || fail "$(head -n 60 <<<"$found")" "$advice"
    fi
    cat "$new" >"$4"
}

request=$1
shift
[[ -f ${1-} ]] || fail "No such library: ${1-}"
if ! command -v abidw >/dev/null; then
    echo "Skipped: abidw is missing (Debian package abigail-tools)"
    exit 77
fi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
case $request in
list | compare | update) "$request" "$@" ;;
*) fail "Unknown request: $request" ;;
esac
