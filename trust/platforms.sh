# The host programs on large generated inputs: the same bytes on Linux and under Wine.

input_lines=100000
work=$PWD/build/trust/platforms
motifs=$PWD/examples/motifs
root=$PWD

# Typed quantities, valid and invalid: numbers of every form, every word of every unit, and
# what else people type around them.
quantities() {
    awk -v lines="$input_lines" '
    function any(list, parts) { return parts[1 + int(rand() * split(list, parts, "|"))] }
    function digits(most, text, n) {
        for (n = 1 + int(rand() * most); n > 0; --n) text = text int(rand() * 10)
        return text
    }
    function number() {
        if (rand() < 0.03) return any("|+|-|.|1/2|1,5|1e3|0x10|1 000|--2|½|\342\210\2223")
        number_ = any("||||-|+") (rand() < 0.1 ? "" : digits(rand() < 0.1 ? 18 : 4))
        return number_ (rand() < 0.6 ? "." digits(rand() < 0.1 ? 20 : 3) : "")
    }
    function unit() {
        return any("mm|milli|millimeter|millimeters|cm|centi|centimeter|centimeters|\"|in|inch|" \
            "inches|p|pt|point|points|spi|stitch|stitches|stitches per inch|per sq cm|/ sq cm|" \
            "per square centimeter|/ sq |mm/s|cm/s|MM|Inches||||m|ft|%|\302\260|bananas|min|pins|" \
            "mm2|in extra|cm, wide|″|per cm|per sq in|stitches  per inch")
    }
    BEGIN {
        srand(20260105)
        while (lines > 0) {
            text = any("||||||||about | |~|mm ") number() any("| |  |\t") unit() \
                any("||||||||| |.| x")
            if (text ~ /[^ \t]/) {
                print text
                --lines
            }
        }
    }' </dev/null
}

# run NAME PROGRAM INPUT ARGUMENT...: on both platforms, each in a directory of its own that
# takes status, output and errors.
run() {
    local name=$1 program=$2 input=$3 platform command status
    shift 3
    for platform in linux windows; do
        command=("$root/build/linux/bin/$program")
        [[ $platform == linux ]] || command=("$wine" "$root/build/windows/bin/$program.exe")
        status=0
        (cd "$work/$platform" && "${command[@]}" "$@" <"$input" >"$name.out" 2>"$name.err") ||
            status=$?
        say "$status" >"$work/$platform/$name.status"
    done
}

# plan NAME SED: the motif NAME changed by SED, with a picture.
plans=0
plan() {
    plans=$((plans + 1))
    local name=plan-$plans-$1
    sed -e "$2" "$motifs/$1.motif" >"$work/$name.motif"
    run "$name" zarnex-stitchplan "$work/$name.motif" --svg "$name.svg" -
}

figures() { # PATTERN: files and bytes on Linux, as two cells
    find "$work/linux" -name "$1" -printf '%s\n' |
        awk '{ bytes += $1 } END { printf "%d | %d", NR, bytes }'
}

need_windows >&2 || fail "No Windows platform: $reason"
for preset in linux windows; do
    [[ -e build/$preset/build.ninja ]] || configure "$preset" OFF >&2
    cmake --build --preset "$preset" -j "$jobs" --target zarnex-units zarnex-stitchplan >&2
done
start_wine >&2
wine=$(wine_loader)
export LC_ALL=C.UTF-8 # Wine passes arguments by the locale

rm -rf "$work"
mkdir -p "$work/linux" "$work/windows"
quantities >"$work/quantities.txt"
for unit in mm cm in pt spi "per sq cm" mm/s cm/s; do
    run "units-${unit//[ \/]/-}" zarnex-units "$work/quantities.txt" --unit "$unit" --file -
done
for motif in leaf star initials; do
    plan $motif ''
    for angle in 0 17 45 90 123.4 -30; do
        plan $motif "s/^angle.*/angle $angle degrees/"
    done
    for spacing in '0.3 mm' '0.05 cm' '0.03 in' '7 pt' '80 spi'; do
        plan $motif "s/^spacing.*/spacing $spacing/"
    done
    for stitch in '1.7 mm' '0.4 cm' '0.1 in' '33 pt' '9 spi'; do
        plan $motif "s/^stitch.*/stitch $stitch/"
    done
    for unit in cm in pt; do # bare numbers count in it, so that some plans are refused
        plan $motif "1a units $unit"
    done
    for change in 'scale 50 %' 'scale 73.5 %' 'repeat 3 by 120 degrees' 'repeat flipped'; do
        plan $motif "\$a $change"
    done
done

different=0
while read -r file; do
    if ! cmp "$work/linux/$file" "$work/windows/$file" >&2; then
        different=$((different + 1))
    fi
done < <(cd "$work" && find linux windows -type f -printf '%P\n' | sort -u)
[[ $different == 0 ]] || fail "Files that differ: $different"

table=$work/linux/units-mm.out
valid=$(awk -F '\t' '$3 == "yes"' "$table" | wc -l)
invalid=$(awk -F '\t' '$3 == "no"' "$table" | wc -l)
planned=$(grep -lx 0 "$work"/linux/plan-*.status | wc -l)
((valid > input_lines / 10 && invalid > input_lines / 100 && planned > plans / 2)) ||
    fail "The input is one-sided: $valid valid, $invalid invalid, $planned of $plans planned"

cat <<END
Both host programs ran on the same generated input on Linux and, as Windows programs, under
Wine: $((valid + invalid)) typed texts, of which $valid were valid and $invalid invalid in millimetres, once
for each of the eight units that a bare number can count in; and $plans variations of the three
motifs (angles, spacings, stitch lengths, units, scales, repeats), of which $planned could be
planned and the others were refused. Compared byte for byte, without a difference:

| | files | bytes |
|---|---|---|
| tables of quantities | $(figures 'units-*.out') |
| summaries of plans | $(figures 'plan-*.out') |
| pictures | $(figures '*.svg') |
| error messages | $(figures '*.err') |
| exit statuses | $(figures '*.status') |
END
