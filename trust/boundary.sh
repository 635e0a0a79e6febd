# Hosts of every compiler and both extremes of optimisation, against the libraries as they ship.

work=$PWD/build/trust/boundary
root=$PWD
declare -A libraries=(
    [linux]=build/linux/lib/libzarnex-foundation.so
    [windows]=build/windows/lib/libzarnex-foundation.dll.a
)

# host PRESET NAME COMPILER FLAGS SOURCE...: a host program in $work/PRESET.
host() {
    local preset=$1 name=$2 compiler=$3 flags=$4
    shift 4
    local link=()
    if [[ $preset == windows ]]; then
        link=(-static)
    else
        link=("-Wl,-rpath,$root/build/linux/lib" -ldl)
    fi
    # shellcheck disable=SC2086 # a word a flag
    "$compiler" $flags -Wall -Wextra -Werror -I. "-Ibuild/$preset/tests/abi" "$@" \
        -o "$work/$preset/$name" "${link[@]}" $library >&2
}

# run PRESET NAME ARGUMENT...: its output.
run() {
    local preset=$1 name=$2
    shift 2
    if [[ $preset == windows ]]; then
        "$(wine_loader)" "$work/windows/$name" "$@" | tr -d '\r'
    else
        "$work/linux/$name" "$@"
    fi
}

# hosts PRESET NAME COMPILER FLAGS: all hosts of one compiler and level; a row of the table.
hosts() {
    local preset=$1 name=$2 compiler=$3 flags=$4 library=${libraries[$1]} names arrays stages
    host "$preset" "names-$name.exe" "$compiler" "$flags -std=c++20 -fno-access-control -Wno-delete-non-abstract-non-virtual-dtor" \
        tests/abi/allNames.cpp
    host "$preset" "linkage-$name.exe" "$compiler" "$flags -std=c++17" tests/abi/linkage.cpp
    host "$preset" "lifetime-$name.exe" "$compiler" "$flags -std=c++17" \
        tests/boundary/lifetime.cpp
    host "$preset" "linked-$name.exe" "$compiler" "$flags -std=c++17 -DHOST_IS_LINKED" \
        tests/boundary/main.cpp tests/boundary/module.cpp
    library=""
    host "$preset" "loading-$name.exe" "$compiler" "$flags -std=c++17" tests/boundary/main.cpp
    library=${libraries[$preset]}
    host "$preset" "module-$name.dll" "$compiler" \
        "$flags -std=c++17 -shared -fvisibility=hidden$([[ $preset == windows ]] || echo ' -fPIC')" \
        tests/boundary/module.cpp
    names=$(run "$preset" "names-$name.exe")
    arrays=$(run "$preset" "linkage-$name.exe")
    stages=$(run "$preset" "lifetime-$name.exe")
    row="| $name | ${names% names} | ${arrays%%,*} | ${stages% stages} |"
    rows+=("$row")
}

# exceptions PRESET NAME: those caught between a host and the modules of all compilers.
exceptions() {
    local preset=$1 name=$2 how counts=() output
    for how in linked loading; do
        output=$(cd "$work/$preset" && run "$preset" "$how-$name.exe" "${modules[@]}")
        output=${output% exceptions}
        counts+=("${output##* }")
    done
    say "${counts[0]} | ${counts[1]} |"
}

need googletest >&2 || fail "Cannot configure the tests: $reason"
need clang-14 >&2 || fail "No clang: $reason"
need_windows >&2 || fail "No Windows platform: $reason"
rm -rf "$work"
mkdir -p "$work/linux" "$work/windows"
for preset in linux windows; do
    configure "$preset" ON >&2
    cmake --build --preset "$preset" -j "$jobs" --target \
        zarnex-foundation test-abi-all-names test-abi-linkage >&2
done
start_wine >&2
cp build/windows/bin/zarnex-foundation.dll "$work/windows"

checks='abi-exports|abi-internal-names|abi-imports'
for preset in linux windows; do
    ctest --preset "$preset" -R "^($checks)\$" </dev/null >&2
done
exported=$(NM=nm CXXFILT=c++filt bash tests/abi/exports.sh names build/linux/lib/libzarnex-foundation.so | wc -l)
needed=$(x86_64-w64-mingw32-objdump -p build/windows/bin/zarnex-foundation.dll |
    sed -n 's/^[[:space:]]*DLL Name: //p' | sort -f | paste -sd ' ')

cat <<END
The names that both libraries export are the same, $exported on Linux, none of the inside among them. The
DLL imports from $needed alone.

Hosts were compiled against each: one touches every exported name through its declaration, one
uses every exported array and list, one uses the library before \`main()\` and after \`exit()\`
began. \`ZarnexException\` and a class that the host derives from it were thrown through
the library and caught as every class that they are, between hosts and modules of all compilers in both
directions: by hosts that are linked to the library, and by hosts that load it at run time with their
modules (\`RTLD_LOCAL\`, \`LoadLibrary\`), twice. Nothing was lost; what one side makes the other frees.

| host | names | containers | stages of life | exceptions, linked | exceptions, loading |
|---|---|---|---|---|---|
END
for preset in linux windows; do
    rows=() modules=()
    if [[ $preset == linux ]]; then
        all=('g++ -O0' 'g++ -O2' 'clang++-14 -O0' 'clang++-14 -O2')
    else
        all=('x86_64-w64-mingw32-g++-posix -O0' 'x86_64-w64-mingw32-g++-posix -O2')
    fi
    for entry in "${all[@]}"; do
        name=${entry/-14/}
        name=${name/x86_64-w64-mingw32-g++-posix/mingw}
        name=${name// /}
        hosts "$preset" "$name" "${entry% *}" "${entry#* }"
        modules+=("./module-$name.dll")
    done
    for row in "${rows[@]}"; do
        name=${row#| }
        name=${name%% *}
        say "$row $(exceptions "$preset" "$name")"
    done
done
