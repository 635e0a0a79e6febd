#!/usr/bin/env bash
# Measures everything that stands in docs/performance.md and writes that page to standard
# output; progress goes to standard error.
#
#   bench/report.sh BUILD_DIRECTORY
#
# BUILD_DIRECTORY holds the benchmark. The size of the DLL is told where build/windows has one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1
work=$build/report
mkdir -p "$work"

step() { echo "--- $*" >&2; }

# median FORMAT COMMAND...: of five runs, with FORMAT as in TIMEFORMAT: %R real, %U user.
median() {
    local TIMEFORMAT=$1
    shift
    for _ in 1 2 3 4 5; do
        { time "$@" >/dev/null 2>&1; } 2>&1
    done | sort -n | sed -n 3p
}

# --- sections -----------------------------------------------------------------------------

machine() {
    local processor
    processor=$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)
    cat <<END
- $(nproc) cores of a shared machine: $processor
- $(. /etc/os-release && echo "$PRETTY_NAME"), $(g++ --version | head -n 1)
- library: -O2, as RelWithDebInfo builds it; benchmark and headers of peers: -O3
- peers: $("$build/bin/zarnex-bench" --peers)
END
}

stripped_size() {
    cp "$1" "$work/stripped"
    "$2" --strip-unneeded "$work/stripped"
    echo "| $3 | $(($(stat -c %s "$work/stripped") / 1024)) KiB |"
}

sizes() {
    echo "| library, stripped | size |"
    echo "|---|---|"
    stripped_size "$build/lib/libzarnex-foundation.so" strip libzarnex-foundation.so.1
    local dll=build/windows/bin/zarnex-foundation.dll
    if [[ -e $dll ]] && command -v x86_64-w64-mingw32-strip >/dev/null; then
        stripped_size "$dll" x86_64-w64-mingw32-strip \
            "zarnex-foundation.dll, with the compiler's runtime inside"
    fi
}

# compile_time COMPILER STANDARD HEADER
compile_time() {
    echo "#include <$3>" >"$work/host.cpp"
    median %U "$1" -std="$2" -O2 -I . -c -o /dev/null "$work/host.cpp"
}

compile_times() {
    echo "| a source that includes | compiler | seconds |"
    echo "|---|---|---|"
    local compiler header
    for compiler in g++ clang++-14; do
        command -v $compiler >/dev/null || continue
        for header in zarnex/foundation.h zarnex/strings/ZString.h zarnex/units/ZMillimeter.h \
            zarnex/transforms/Z2DTrans.h zarnex/bigint/SigUInt.h string vector; do
            echo "| \`<$header>\` | $compiler -std=c++20 | $(compile_time $compiler c++20 $header) |"
        done
        echo "| \`<zarnex/foundation.h>\` | $compiler -std=c++17 |" \
            "$(compile_time $compiler c++17 zarnex/foundation.h) |"
    done
}

quantity_lines() {
    awk 'BEGIN {
        split("mm,cm,in,pt,spi,stitches per inch,per sq cm,\",millimeters,inches,ft,", unit, ",")
        for (i = 0; i < 1000000; ++i)
            printf "%s%d.%d %s\n", i % 17 ? "" : "-", i * 7919 % 1000, i % 100, unit[i % 12 + 1]
    }'
}

host_programs() {
    quantity_lines >"$work/quantities.txt"
    cat >"$work/square.motif" <<'END'
hoop 1010 mm x 1010 mm
stitch 2.5 mm
spacing 0.4 mm
outline
point -500, -500; 500, -500; 500, 500; -500, 500
close
END
    local units=$build/bin/zarnex-units plan=$build/bin/zarnex-stitchplan
    local stitches
    stitches=$("$plan" "$work/square.motif" | sed -n 's/^stitches[^0-9]*\([0-9]*\).*/\1/p' | head -n 1)
    cat <<END
| run | seconds, user | seconds, real |
|---|---|---|
END
    local name
    for name in "zarnex-units --file, 1,000,000 lines" \
        "zarnex-stitchplan, $stitches stitches" "zarnex-stitchplan --svg, $stitches stitches"; do
        local command=("$plan" "$work/square.motif")
        [[ $name != *units* ]] || command=("$units" --file "$work/quantities.txt")
        [[ $name != *svg* ]] || command=("$plan" --svg "$work/square.svg" "$work/square.motif")
        echo "| $name | $(median %U "${command[@]}") | $(median %R "${command[@]}") |"
    done
}

# measured_again FILE: the rows that FILE, what the benchmark printed, calls unexplained.
measured_again() {
    local name
    echo "| row | ratio (quartiles) and peers, alone | again |"
    echo "|---|---|---|"
    sed -n '/BEYOND, unexplained/s/   *.*//p' "$1" | while IFS= read -r name; do
        echo "| $name | $(alone "$name") | $(alone "$name") |"
    done
}

# alone ROW: its figures in a process that runs no row but this one and those it begins.
alone() {
    "$build/bin/zarnex-bench" "$1" | awk -v row="$1" '
        index($0, row) == 1 && substr($0, length(row) + 1) ~ /^ +[0-9]/ {
            sub(/^.*(ns|µs|ms)  +/, ""); sub(/; beside.*/, ""); sub(/, unexplained/, ""); print
        }'
}

# --- the page -----------------------------------------------------------------------------

step "rows"
"$build/bin/zarnex-bench" --markdown "$work/rows.md" | tee "$work/rows.txt" >&2
step "allocations, sizes, compile times, host programs"

cat <<END
# Performance

Written by \`./dev bench\` on $(date -u +%Y-%m-%d), as measured.

$(machine)

## Against its peers

A ratio is the library's time divided by the peer's: below 1 the library is faster. Every
round runs each side of a row once, in rotating order and in the same process; the ratio is
the median over the rounds, with its quartiles in brackets. "Hardest peer" is the one of the
same structure and the same work that is nearest to its limit or furthest beyond; "other
peers" are further ones of that kind. Those "beside" keep their elements in another way, or do
less, and are shown for orientation: they do not count. A row is beyond its limit, and its
ratio bold, where even the lower quartile is.

$(cat "$work/rows.md")

## Beyond without a reason, measured again

Rows that were beyond their limit above without a reason in the code, each in a process of
its own, twice: without the rows before them, heap and caches have no history.

$(measured_again "$work/rows.txt")

## Allocations

$("$build/bin/zarnex-bench-allocations")

## Size

$(sizes)

## What a host pays at compile time

Seconds of processor time, the median of five.

$(compile_times)

No public header includes \`<iostream>\`, \`<regex>\` or \`<filesystem>\`; a test holds this.

## The host programs

The median of five runs.

$(host_programs)
END
