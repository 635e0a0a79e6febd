#!/usr/bin/env bash
# What debuggers show of the library's objects.
#
#   run.sh printers LIBRARY HOST TOOLS   gdb prints what rows.txt says, with the printers that it
#                                        finds by itself as it does for an installed library
#   run.sh natvis LIBRARY HOST TOOLS     zarnex.natvis names types and members that there are
#
# Ends with 77 where gdb is missing or may not run programs.
set -euo pipefail

request=$1 library=$(realpath "$2") host=$3 tools=$4
if ! command -v gdb >/dev/null; then
    echo "Skipped: gdb is missing (Debian package gdb)"
    exit 77
fi
if ! gdb -batch -nx -ex run --args true 2>&1 | grep -q 'exited normally'; then
    echo "Skipped: gdb may not run programs here"
    exit 77
fi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
installed=$scratch/auto-load$(dirname "$library")
mkdir -p "$installed"
cp "$tools/zarnex_gdb.py" "$installed/"
cp "$tools/libzarnex-foundation-gdb.py" "$installed/$(basename "$library")-gdb.py"

export ZARNEX_ROWS ZARNEX_NATVIS LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
ZARNEX_ROWS=$(dirname "$0")/rows.txt
ZARNEX_NATVIS=$tools/zarnex.natvis
gdb -batch -nx \
    -iex "set auto-load scripts-directory $scratch/auto-load" \
    -iex "set auto-load safe-path $scratch/auto-load" \
    -iex "set debuginfod enabled off" \
    -x "$(dirname "$0")/$request.py" "$host"
