#!/usr/bin/env bash
# What the shared library exports.
#
#   exports.sh names LIBRARY            prints the exported names, one a line
#   exports.sh compare LIBRARY SYMBOLS  fails unless they are those of the symbols file
#   exports.sh internal LIBRARY         fails if names of the inside are exported
#   exports.sh imports LIBRARY          fails if a DLL needs more than the system's DLLs
#
# The tools are taken from NM (for a .so), OBJDUMP (for a DLL) and CXXFILT.
#
# Names are the same for both formats and for all compilers:
# - Virtual tables, type information, thunks and the variables of functions are left out: each
#   format places them by its own rules. The several constructors and destructors that
#   compilers make of one declaration demangle to one name.
# - Compared, `long long` is `long`: std::size_t is `unsigned long` on Linux and `unsigned
#   long long` on Windows. Overloads for both remain two names.
set -euo pipefail
export LC_ALL=C

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

# mangled FILE: the symbols that a library exports, or that a symbols file of Debian lists, as the
# linker knows them.
mangled() {
    local names
    case $1 in
    *.symbols)
        names=$(sed -n 's/^ \([^@]*\)@.*/\1/p' "$1")
        ;;
    *.dll)
        names=$("${OBJDUMP:?objdump is needed}" -p "$1" |
            awk '/^\[Ordinal\/Name Pointer\]/ { inside = 1; next }
                 inside && NF == 0 { exit }
                 inside { print $NF }')
        ;;
    *)
        names=$("${NM:?nm is needed}" --dynamic --defined-only --format=posix "$1" |
            cut -d ' ' -f 1 | sed 's/@.*//' |
            { grep -vxE '_init|_fini|_edata|_end|__bss_start' || true; })
        ;;
    esac
    [[ -n $names ]] || fail "No exported names found in $1"
    sort -u <<<"$names"
}

names() {
    local names
    names=$(mangled "$1" | grep -vE '^_Z(T|GV|GR|Z)')
    names=$("${CXXFILT:?c++filt is needed}" <<<"$names")
    sort -u <<<"$names"
}

comparable() {
    names "$1" | sed 's/long long/long/g' | sort
}

compare() {
    local exported listed changes
    exported=$(comparable "$1")
    listed=$(comparable "$2")
    changes=$(diff --label "$2" --label "$1" --unified=0 <(cat <<<"$listed") - <<<"$exported") ||
        fail "$(head -n 100 <<<"$changes")" \
            "The exported names have changed. If that is meant: ./dev exports"
}

# Names of std::, operator new and delete, the compiler's runtime, unnamed namespaces and the
# library's own inside. The patterns read what stands before the first name: S followed by a
# small letter is std:: or one of the short forms for its classes. A DLL may hold type
# information of the inside: mingw's compiler exports that of every class derived from an
# exported one.
internal() {
    local names inside
    names=$(mangled "$1")
    [[ $1 != *.dll ]] || names=$(grep -v '^_ZT[IS]' <<<"$names")
    inside=$(grep -E -e '^_Z(T[A-Za-z]|GVZ?|GR|Z)*(N[KVRO]*)?S[a-z]' \
        -e '^_Z(T[A-Za-z]|GVZ?|GR|Z)*N[KVRO]*(9__gnu_cxx|10__cxxabiv1|12_GLOBAL__N_1)' \
        -e '^_Z(T[A-Za-z]|GVZ?|GR|Z)*N[KVRO]*6zarnex(6detail|8platform|12_GLOBAL__N_1)' \
        -e '^_Z(n[aw]|d[al])' \
        -e '^(_Unwind_|__cxa_|__gcc_|__gxx_|pthread_)' \
        <<<"$names" || true)
    [[ -z $inside ]] || fail "Exported although internal:
$("${CXXFILT:?c++filt is needed}" <<<"$inside")"
}

imports() {
    local needed strange
    needed=$("${OBJDUMP:?objdump is needed}" -p "$1" | sed -n 's/^[[:space:]]*DLL Name: //p')
    [[ -n $needed ]] || fail "No imported DLLs found in $1"
    strange=$(grep -viE '^(advapi32|gdi32|kernel32|msvcrt|ole32|rpcrt4|user32)\.dll$' \
        <<<"$needed" || true)
    [[ -z $strange ]] || fail "Needed, but not part of the system: $strange"
}

[[ -f ${2-} ]] || fail "No such library: ${2-}"
case $1 in
names | compare | internal | imports) "$@" ;;
*) fail "Unknown request: $1" ;;
esac
