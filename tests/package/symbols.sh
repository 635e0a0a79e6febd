#!/usr/bin/env bash
# The exported names as Debian's packages list them, each with the version that brought it.
#
#   symbols.sh compare LIBRARY VERSION LIST  fails unless the library has just the names of LIST
#   symbols.sh update LIBRARY VERSION LIST   makes it so; names that are new come with VERSION
#
# The tool takes a name that is gone for a fault only in a later version than the one that
# brought it, so it is told one: VERSION with a plus behind it.
set -euo pipefail

request=$1 library=$2 version=$3 list=$4
found=$(mktemp)
trap 'rm -f "$found"' EXIT

judge() {
    dpkg-gensymbols -plibzarnex-foundation1 -v"$version+" -I"$list" -e"$library" -O"$found" "$@"
}

case $request in
compare)
    if ! changes=$(judge -c4 2>&1); then
        printf '%s\n' "$(head -n 100 <<<"$changes")" \
            "The exported names have changed. If that is meant: ./dev exports" >&2
        exit 1
    fi
    ;;
update)
    judge -c0 >/dev/null 2>&1
    sed -e '/^#MISSING/d' -e 's/+$//' "$found" >"$list"
    ;;
*)
    echo "Unknown request: $request" >&2
    exit 1
    ;;
esac
