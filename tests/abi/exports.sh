#!/usr/bin/env bash
# What the shared library exports.
#
#   exports.sh list LIBRARY              prints the exported names, one a line
#   exports.sh names LIBRARY             the same as the compiler writes them, none left out
#   exports.sh compare LIBRARY EXPECTED  fails unless they are those in EXPECTED
#   exports.sh internal LIBRARY          fails if names of the inside are exported
#   exports.sh imports LIBRARY           fails if a DLL needs more than the system's DLLs
#
# The tools are taken from NM (for a .so), OBJDUMP (for a DLL) and CXXFILT.
#
# The list is the same for both formats and for all compilers:
# - It leaves out virtual tables, type information, thunks and the variables of functions,
#   which each format places by its own rules. The several constructors and destructors that
#   compilers make of one declaration demangle to one name.
# - `long long` is written `long`: std::size_t is `unsigned long` on Linux and `unsigned
#   long long` on Windows. Overloads for both remain two lines.
# - A member that several instantiations of a container share is one line with T for their
#   element type and the number of them; a line a container names these types.
set -euo pipefail
export LC_ALL=C

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

# mangled LIBRARY: the exported symbols as the linker knows them.
mangled() {
    local names
    case $1 in
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

list() {
    names "$1" | sed 's/long long/long/g' | sort | fold_instantiations | sort
}

fold_instantiations() {
    awk '
        function swap(text, from, to,    out, at) {
            while ((at = index(text, from)) > 0) {
                out = out substr(text, 1, at - 1) to
                text = substr(text, at + length(from))
            }
            return out text
        }
        # The place of the ">" that closes the "<" at `open`.
        function closing(text, open,    i, depth, c) {
            for (i = open; i <= length(text); ++i) {
                c = substr(text, i, 1)
                depth += (c == "<") - (c == ">")
                if (depth == 0)
                    return i
            }
        }
        !/^(ZList|ZXArray)</ { print; next }
        {
            open = index($0, "<")
            end = closing($0, open)
            container = substr($0, 1, open - 1) "<T>"
            type = substr($0, open + 1, end - open - 1)
            sub(/ $/, "", type)
            member = swap(substr($0, end + 1), "<" type ">", "<T>")
            member = swap(member, "<" type " >", "<T>")
            member = swap(member, "<" type ",", "<T,")
            member = swap(member, type " const&", "T const&")
            member = swap(member, type " const*", "T const*")
            member = swap(member, type "&", "T&")
            member = swap(member, type "*", "T*")
            member = swap(member, "(*)(" type ",", "(*)(T,")
            ++count[container member]
            if (!((container, type) in known)) {
                known[container, type] = 1
                types[container] = types[container] "; " type
            }
        }
        END {
            for (line in count)
                print line " x " count[line]
            for (container in types)
                print container " with T =" substr(types[container], 2)
        }'
}

compare() {
    local names changes
    names=$(list "$1")
    changes=$(diff --label "$2" --label "$1" --unified=0 "$2" - <<<"$names") ||
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
list | names | compare | internal | imports) "$@" ;;
*) fail "Unknown request: $1" ;;
esac
