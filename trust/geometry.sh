# Geometry and transforms: degenerate input under the sanitizers, and how far results are from
# exact arithmetic.

work=build/trust/geometry
rm -rf "$work"
mkdir -p "$work"

# demangled: the functions among symbols, by their names as written; the several constructors and
# destructors that compilers make of one have the same name.
demangled() { c++filt | grep -vE '^(vtable|typeinfo|guard|VTT|.*thunk)' | sort -u; }

# exported_functions: those of the two folders, without the lists and arrays that stand there and
# without what a host cannot name: private and protected members.
exported_functions() {
    local objects=build/linux/zarnex/CMakeFiles/zarnex-foundation.dir
    nm --defined-only --format=posix "$objects"/{geometry,transforms}/*.o |
        awk 'NF > 1 { print $1 }' | sort -u >"$work/defined"
    nm --dynamic --defined-only --format=posix build/linux/lib/libzarnex-foundation.so |
        awk '{ print $1 }' | sed 's/@.*//' | sort -u | comm -12 - "$work/defined" | demangled |
        grep -vE '^(ZList|ZXArray|ZListIterator)<' |
        grep -vE 'tagPOINT|::(allocate|elements|isWhole|setElements|next|refill|size)\(|::show'
}

# called_functions: what the test calls, where nothing is inlined that it does not call.
called_functions() {
    local source
    for source in tests/degenerate/*_test.cpp; do
        g++ -std=c++20 -O0 -I. -isystem /usr/src/googletest/googletest/include -c "$source" \
            -o "$work/$(basename "$source").o" >&2
    done
    nm --format=posix "$work"/*.o | awk '{ print $1 }' | sort -u | demangled
}

need googletest libgmp-dev >&2 || fail "Cannot try: $reason"
for preset in linux asan; do
    configure "$preset" ON >&2
done
cmake --build --preset linux -j "$jobs" --target trial-exactness >&2
cmake --build --preset asan -j "$jobs" --target test-degenerate >&2

exported_functions >"$work/exported"
called_functions >"$work/called"
comm -23 "$work/exported" "$work/called" >"$work/missed"
[[ ! -s $work/missed ]] || fail "Not tried:" "$(cat "$work/missed")"

start=$SECONDS
ZARNEX_LONG_TRIAL=1 build/asan/bin/test-degenerate --gtest_brief=1 >&2
seconds=$((SECONDS - start))

cat <<END
All $(wc -l <"$work/exported") exported functions and members of \`zarnex/geometry\` and
\`zarnex/transforms\` were called with every pair, triple or foursome of a grid: NaN, infinities,
zeros of both signs, denormal, coinciding, collinear, nearly collinear and huge coordinates, and
the extremes of 32 and 16 bits; under AddressSanitizer and UndefinedBehaviorSanitizer, in
$seconds s. No fault was found: each result is one that the header lists, outputs are left alone
where it says so, and exchanged operands, ends, lines and axes give equal results where the
formulas are symmetric.

END
build/linux/bin/trial-exactness
cat <<'END'

Where a result is wrong, the fixed formulas in doubles and their absolute bounds are the reason,
as the headers say: the trial fails if a sign is wrong though the determinant exceeds its own
rounding, if a crossing is off by more than twelve roundings of its terms, or if
`isContainedIntersect` errs though the crossing lies further than that from every end. In
detail: `Are3PointsCCW` normalizes both steps, so that it errs elsewhere than the bare product; `isCCWSTDListDPoint`
judges an outline within 3.16e-5 as a whole by the turn from the wrong neighbour; `intersect`
takes a determinant below 1e-14 as parallel, however short the segments are.
END
