# Libraries altered on purpose, judged by the list of what hosts are compiled to rely on.

work=build/trust/abi
tree=$work/tree
list=tests/abi/layout.txt

build_copy() {
    cmake --build "$work/build" -j "$jobs" --target zarnex-foundation >&2
}

# judge: what tests/abi/layout.sh says about the copy, in $work/verdict; its status.
judge() {
    bash tests/abi/layout.sh compare "$work/build/lib/libzarnex-foundation.so" "$tree/zarnex" \
        "$(sed -n '1s/^version //p' $list)" "$list" >"$work/verdict" 2>&1
}

# alter NAME KIND EXPECTED FILES SED: the copy with FILES changed by SED must be found out by a
# line of KIND ("breaks" or "adds") with the words EXPECTED.
alter() {
    local file
    for file in $4; do
        sed "$5" "zarnex/$file" >"$tree/zarnex/$file"
        ! cmp -s "zarnex/$file" "$tree/zarnex/$file" || fail "Not altered: $file ($1)"
    done
    build_copy
    if judge; then
        fail "Not found out: $1"
    fi
    cat "$work/verdict" >&2
    grep -qF "$2: $3" "$work/verdict" || fail "Not found out as \"$2: $3\": $1"
    if [[ $2 == adds ]] && grep -q '^breaks' "$work/verdict"; then
        fail "Taken for a break: $1"
    fi
    say "| $1 | $(grep -c '^breaks' "$work/verdict") | \`${3#? }\` |"
    for file in $4; do
        cp "zarnex/$file" "$tree/zarnex/$file"
    done
}

need abigail-tools >&2 || fail "Cannot read the layout: $reason"
rm -rf "$tree"
mkdir -p "$tree"
cp -r CMakeLists.txt cmake zarnex "$tree"
cmake -G Ninja -S "$tree" -B "$work/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZARNEX_BUILD_TESTS=OFF -DZARNEX_BUILD_EXAMPLES=OFF -DZARNEX_INSTALL=OFF >&2
build_copy
judge || fail "The library is not what $list says: $(<"$work/verdict")"

cat <<END
What hosts are compiled to rely on stands in a list of $(grep -c ' bytes$' $list) classes: $(grep -c ': at ' $list) members
with places and types, $(grep -c ': slot ' $list) virtual slots, and $(grep -c ': returns ' $list) functions with their results. A
test refuses a library that differs, and the list takes no break without a new major version.
The library as it is agrees with it; these altered ones were found out:

| alteration | lines that break hosts | one of them |
|---|---|---|
END
refs=runtime/ZRefCount.h
alter 'a member added to a class' breaks '+ ZRefCount: 24 bytes' $refs \
    's/    unsigned int count_;/&\n    void* owner_;/'
alter 'two members exchanged' breaks '+ ZRefCount: at 0 unsigned int count_' $refs \
    '/    void\* pointer_;/{N;s/\(.*\)\n\(.*\)/\2\n\1/}'
alter 'the type of a member changed' breaks '+ ZrnRandomGenerator: at 0 unsigned int multiplier_' \
    geometry/ZrnRandomGenerator.h 's/    int multiplier_;/    unsigned int multiplier_;/'
alter 'a virtual slot moved' breaks '+ QSort::Callback: slot 2 int compare' containers/QSort.h \
    '/virtual ~Callback();/d; /class ZARNEX_API Callback {/{n;s/$/\n        virtual ~Callback();/}'
alter 'a virtual function added' breaks '+ ZGroupable: slot 3 int isItem' containers/ZGroupable.h \
    's/    virtual int isGroup();/&\n    virtual int isItem() { return 1; }/'
centre='geometry/circleCentre.h geometry/circleCentre.cpp'
signature='(DPoint*, DPoint const&, DPoint const&, DPoint const&)'
alter 'a function removed' breaks "- LUcomputeCentre$signature: returns int" "$centre" \
    's/\bLUcomputeCentre\b/LUcomputeMiddle/'
alter 'the result of a function changed' breaks "+ LUcomputeCentre$signature: returns long int" \
    "$centre" 's/\bint LUcomputeCentre\b/long LUcomputeCentre/'
alter 'a function added, which breaks nothing' adds '+ computeMiddle(): returns int' \
    geometry/circleCentre.cpp '$s/$/\nZARNEX_API int computeMiddle();\nint computeMiddle() { return 0; }/'
