# Each public header by itself, under every compiler and standard, and beside the headers of
# systems and frameworks that hosts include as well.

work=build/trust/headers
strict='-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -fsyntax-only -I.'
standards=(17 20 2b)
mingw=x86_64-w64-mingw32-g++-posix

# unit NAME LINE...: a source of these lines; its path.
unit() {
    local file=$work/units/$1.cpp
    shift
    printf '%s\n' "$@" >"$file"
    say "$file"
}

# later KIND COMPILER FLAGS SOURCE: one compilation, to be made by compile_all.
later() { printf '%s\t%s %s %s %s\n' "$1" "$2" "$strict" "$3" "$4" >>"$work/jobs"; }

# All of them, as many at a time as the machine shall; lines "KIND STATUS" in $work/results.
compile_all() {
    tr '\n' '\0' <"$work/jobs" | xargs -0 -n 1 -P "$jobs" bash -c '
        kind=${1%%$'"'\t'"'*} status=passed
        errors=$(${1#*$'"'\t'"'} 2>&1) || status=failed
        [[ $status == passed ]] || printf "%s\n%s\n" "$1" "$errors" >&2
        echo "$kind $status"' - >"$work/results"
}

row() { # TITLE KIND: compiled and failed
    local compiled failed
    compiled=$(grep -c "^$2 " "$work/results" || true)
    failed=$(grep -c "^$2 failed" "$work/results" || true)
    ((compiled > 0)) || fail "Nothing was compiled: $1"
    say "| $1 | $compiled | $failed |"
}

need clang-14 >&2 || fail "No clang: $reason"
need g++-mingw-w64-x86-64-posix >&2 || fail "No Windows compiler: $reason"
need qt6-base-dev libx11-dev >&2 || fail "No headers of Qt and X11: $reason"
rm -rf "$work"
mkdir -p "$work/units"

headers=() standard_includes=()
while read -r header; do
    headers+=("$header")
done < <({ sed -n 's/^#include <\(.*\)>/\1/p' zarnex/foundation.h; say zarnex/foundation.h; })

# The standard headers need not survive these macros.
while read -r line; do
    standard_includes+=("$line")
done < <(sed -n 's/^\(#include <[a-z_]*>\).*/\1/p' "${headers[@]}" | sort -u)
windows=('#include <windows.h>' '#include <rpc.h>')
macros=('#undef min' '#undef max'
    '#define min(a, b) ((a) < (b) ? (a) : (b))' '#define max(a, b) ((a) > (b) ? (a) : (b))')
for header in "${headers[@]}"; do
    name=${header//[\/.]/_}
    line="#include <$header>"
    alone=$(unit "$name" "$line" "$line")
    for standard in "${standards[@]}"; do
        later alone g++ "-std=c++$standard" "$alone"
        later alone clang++-14 "-std=c++$standard" "$alone"
    done
    later windows $mingw -std=c++17 "$(unit "$name-last" "${standard_includes[@]}" "${windows[@]}" "${macros[@]}" "$line")"
    later windows $mingw -std=c++17 "$(unit "$name-first" "$line" "${windows[@]}")"
done

qt=$(find /usr/include /usr/local/include -path '*/QtCore/QtCore' 2>/dev/null | head -n 1)
qt=${qt%/QtCore/QtCore}
qt_flags="-fPIC -isystem $qt -isystem $qt/QtCore -isystem $qt/QtGui"
all='#include <zarnex/foundation.h>'
qt_includes=('#include <QtCore/QtCore>' '#include <QtGui/QtGui>')
x_includes=('#include <X11/Xlib.h>' '#include <X11/Xutil.h>' '#include <X11/Xatom.h>')
for standard in "${standards[@]}"; do
    for compiler in g++ clang++-14; do
        flags="-std=c++$standard $qt_flags"
        later qt $compiler "$flags" "$(unit qt-first "${qt_includes[@]}" "$all")"
        later qt $compiler "$flags" "$(unit qt-last "$all" "${qt_includes[@]}")"
        later x11 $compiler "$flags" "$(unit x11-first "${x_includes[@]}" "$all")"
        later x11 $compiler "$flags" "$(unit x11-last "$all" "${x_includes[@]}")"
    done
done

compile_all
cat <<END
${#headers[@]} public headers, with \`-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror\`; g++ 12,
clang 14 and mingw-w64.

| | compilations | failed |
|---|---|---|
END
row 'each header alone, first and twice; two compilers; C++17, 20, 23' alone
row 'each after `<windows.h>` and `<rpc.h>` with the macros `min` and `max`, and before them' windows
row 'all beside QtCore and QtGui, before and after' qt
row 'all beside X11, before and after' x11
! grep -q ' failed$' "$work/results" || fail "Headers do not compile"

# Every exported name that takes wide text is another name in a host with the other wchar_t.
need googletest >&2 || fail "Cannot configure the tests: $reason"
configure linux ON >&2
cmake --build --preset linux -j "$jobs" --target test-abi-all-names >&2
compile_names() { # FLAG OBJECT
    g++ -std=c++20 -w -fno-access-control "$1" -I. -Ibuild/linux/tests/abi \
        -c tests/abi/allNames.cpp -o "$work/$2" >&2
    nm -uC "$work/$2" | grep -c 'wchar_t' || true
}
wide=$(compile_names -fno-short-wchar native.o)
compile_names -fshort-wchar other.o >&2
unmarked=$(nm -uC "$work/other.o" | grep 'wchar_t const\|wchar_t\*\|wchar_t&\|<wchar_t>' |
    grep -vc '\[abi:wchar_t_of_2_bytes\]' || true)
((wide > 0 && unmarked == 0)) || fail "Of $wide names with wide text, $unmarked are not marked"
say "" "Of the $wide exported names with \`wchar_t\` in them, $unmarked would be found by the linker in a host" \
    "that is compiled with a \`wchar_t\` of 2 bytes: its link fails and names the width."
