#!/usr/bin/env bash
# What makes faults of the library and of programs harder to exploit, read from the files.
#
#   hardening.sh fortified|plain FILE...  fails, with file and fault, unless all is there
#
# The tools are taken from READELF, and from OBJDUMP for a DLL or an .exe. FORTIFY is looked for
# in fortified files that call what it protects: those of g++ with optimisation, since clang leaves
# calls of the printf family as they are.
set -euo pipefail
export LC_ALL=C

kind=$1
shift
faults=0

# want FILE WHAT PATTERN TEXT: the text has a line with the pattern. refuse: it has none.
want() { grep -Eq -- "$3" <<<"$4" || fault "$1: $2"; }
refuse() { if grep -Eq -- "$3" <<<"$4"; then fault "$1: $2"; fi; }
fault() {
    printf '%s\n' "$1" >&2
    faults=$((faults + 1))
}

check_elf() {
    local file=$1 headers segments dynamic symbols
    headers=$("${READELF:?readelf is needed}" --wide --file-header "$file")
    segments=$("$READELF" --wide --segments "$file")
    dynamic=$("$READELF" --wide --dynamic "$file")
    symbols=$("$READELF" --wide --dyn-syms "$file")
    want "$file" "fixed address: neither shared library nor PIE" '^ *Type: *DYN' "$headers"
    want "$file" "no RELRO" '^ *GNU_RELRO' "$segments"
    want "$file" "binds lazily: no full RELRO" '\(FLAGS.*NOW' "$dynamic"
    want "$file" "stack not marked" '^ *GNU_STACK .* RW ' "$segments"
    refuse "$file" "memory that is writable and executable" '^ *[A-Z_]+ .* (RWE|R?WE) ' "$segments"
    refuse "$file" "relocations in the code" 'TEXTREL' "$dynamic"
    refuse "$file" "an absolute path to libraries" '\((RPATH|RUNPATH)\).*\[(.*:)?[^]:$]' "$dynamic"
    want "$file" "no stack protector" '__stack_chk_fail' "$symbols"
    [[ $kind == fortified ]] || return 0
    refuse "$file" "calls that FORTIFY would check" ' v?(f|s|sn|sw)?printf@' "$symbols"
}

check_pe() {
    local file=$1 headers flag
    headers=$("${OBJDUMP:?objdump is needed}" -p "$file")
    for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
        want "$file" "no $flag" "^[[:space:]]*$flag\$" "$headers"
    done
    want "$file" "no relocations: fixed address" \
        '^Entry 5 [0-9a-f]+ 0*[1-9a-f][0-9a-f]* Base Relocation' "$headers"
    want "$file" "no stack protector" '__stack_chk_fail' "$("$OBJDUMP" -t "$file")"
}

[[ $# != 0 ]] || fault "no file to check"
for file in "$@"; do
    case $file in
    *.dll | *.exe) check_pe "$file" ;;
    *) check_elf "$file" ;;
    esac
done
((faults == 0))
