# Static analysis without a baseline, hardening of the files that are installed, and builds that
# give the same bytes anywhere. What a tool must not report stands in .clang-tidy, at the place
# in the source, or below, each with its reason.

work=$PWD/build/trust/analysis
rm -rf "$work"
mkdir -p "$work"

need clang-tidy-14 cppcheck shellcheck devscripts >&2 || fail "Cannot analyse: $reason"
need_windows >&2 || fail "No Windows platform: $reason"

# Both platforms as any host would get them. Windows' own sources are analysed by cppcheck only.
programs=(zarnex-units zarnex-stitchplan)
for preset in linux windows; do
    [[ -e build/$preset/build.ninja ]] || configure "$preset" OFF >&2
    cmake --build --preset "$preset" -j "$jobs" --target zarnex-foundation "${programs[@]}" >&2
done
find zarnex examples -name '*.cpp' ! -ipath '*windows*' | sort >"$work/sources"
source tools/lint.sh

clang_tidy() { xargs -P "$jobs" -n 1 clang-tidy-14 --quiet -p build/linux <"$work/sources"; }

# A member that an assignment leaves alone is a rule of the class, or storage of which only a
# part is in use; and storage is not cleared before its first use. What is immortal has no
# destructor, elements move as bytes only where their type allows it, and a constructor that
# delegates calls nothing virtual. This version cannot read two files: for a variable whose
# initializer is a lambda with a loop, and for braces in a case label.
unread=(zarnex/platform/posix/guid.cpp zarnex/strings/internal/format.cpp)
cpp_check() {
    cppcheck --quiet --error-exitcode=1 --std=c++20 --language=c++ -j "$jobs" -I . --inline-suppr \
        --enable=warning,performance,portability --suppress=operatorEqVarError \
        --suppress=noDestructor:zarnex/runtime/internal/Immortal.h \
        --suppress=memsetClass:zarnex/containers/arrayStorage.h \
        --suppress=virtualCallInConstructor:zarnex/containers/ZGroupable.h \
        --suppress=uninitMemberVar --suppress=uninitDerivedMemberVar \
        "${unread[@]/#/--suppress=syntaxError:}" -D__linux__ -D__x86_64__ -D__SSE2__ -D__GNUC__=12 zarnex examples
}

# That of g++ 12 knows neither exceptions nor the containers of the standard library: what it says
# of values without a name, and of leaks from std::vector, is noise and left out.
not_analyzed=(malloc-leak null-dereference possible-null-argument possible-null-dereference
    use-of-uninitialized-value)
gcc_analyzer() {
    cmake --preset linux -B "$work/analyzer" -DZARNEX_BUILD_TESTS=OFF \
        -DCMAKE_CXX_FLAGS="-fanalyzer ${not_analyzed[*]/#/-Wno-analyzer-}" >"$work/configured" &&
        cmake --build "$work/analyzer" -j "$jobs" -- -k 0
}

faults=0
row() { # NAME FILES FUNCTION
    local start=$SECONDS findings=0 log=$work/$3.log
    if ! "$3" >"$log" 2>&1; then
        findings=$(grep -cE '(warning|error|performance|portability|\(error\)|\(warning\)): ' "$log" || true)
        grep -vE '^\[[0-9]+/' "$log" >&2
        faults=$((faults + 1))
    fi
    say "| $1 | $2 | $findings | $((SECONDS - start)) |"
}

say "| analysis | files | findings | seconds |" "|---|---|---|---|"
row 'clang-tidy 14' "$(wc -l <"$work/sources")" clang_tidy
row "$(cppcheck --version)" $(($(find zarnex examples -name '*.cpp' | wc -l) - ${#unread[@]})) cpp_check
row '`g++ -fanalyzer`' "$(wc -l <"$work/sources")" gcc_analyzer
row 'shellcheck' $(($(tracked '*.sh' | wc -l) + 2)) lint_shell
((faults == 0)) || fail "Analyses with findings: $faults"

# --- what is installed ------------------------------------------------------------------

# install_under FOLDER BUILD: for the prefix /usr, whose name stands in the path of gdb's files.
install_under() { DESTDIR=$1 cmake --install "$2" --prefix /usr >&2; }

installed() { # BUILD FOLDER: its binary files
    install_under "$2" "$1"
    find "$2" \( -name '*.so.*.*' -o -path '*/bin/*' \) ! -name '*.py' -type f | sort
}

mapfile -t linux_files < <(installed build/linux "$work/linux")
mapfile -t windows_files < <(installed build/windows "$work/windows")
READELF=readelf OBJDUMP=x86_64-w64-mingw32-objdump tests/abi/hardening.sh fortified \
    "${linux_files[@]}" "${windows_files[@]}" >&2 || fail "Hardening is missing"

# The same, as Debian's own tool sees it; it asks only programs for PIE. That it misses FORTIFY in
# programs without any call that could be checked is no finding.
for file in "${linux_files[@]}"; do
    seen=$(hardening-check "$file" || true)
    for what in 'Stack protected' 'Fortify Source functions' 'Read-only relocations' \
        'Immediate binding' 'Position Independent Executable'; do
        grep -qE "$what: (yes|no, regular shared library|no, only unprotected)" <<<"$seen" ||
            fail "hardening-check of $file: no $what"
    done
done

# --- the same bytes ---------------------------------------------------------------------

elsewhere=$work/elsewhere/in-a-folder/of-another-length
mkdir -p "$elsewhere"
tracked '*' | xargs -d '\n' cp --parents -t "$elsewhere"
for preset in linux windows; do
    (
        cd "$elsewhere" || exit
        export TZ=Pacific/Kiritimati
        cmake --preset "$preset" -DZARNEX_BUILD_TESTS=OFF
        cmake --build --preset "$preset" -j "$jobs"
        install_under "$work/$preset.again" "build/$preset"
    ) >&2
    diff -r "$work/$preset" "$work/$preset.again" >&2 || fail "Builds differ: $preset"
done

cat <<END

The list of what is known and accepted is empty.

Hardening of what \`cmake --install\` puts in place, read from the files: full RELRO, no
executable stack, no memory both writable and executable, position-independent code, stack
protector, FORTIFY, no relocations in code, no absolute paths to libraries (${#linux_files[@]} Linux files, of which
Debian's \`hardening-check\` says the same); DYNAMIC_BASE, HIGH_ENTROPY_VA, NX_COMPAT, relocations
and stack protector (${#windows_files[@]} Windows files).

Built again at another time, in a folder of another path and in another time zone, all $(find "$work/linux" -type f | wc -l) files
installed on Linux and $(find "$work/windows" -type f | wc -l) on Windows came out the same, byte for byte, with their debug
information.
END
