# Any input, for ZARNEX_FUZZ_SECONDS seconds a target, as many targets at a time as there are jobs.

seconds=${ZARNEX_FUZZ_SECONDS:-20}
work=build/trust/fuzzing
mapfile -t targets < <(fuzz_targets)
[[ ${#targets[@]} -gt 0 ]] || fail "No fuzz targets"

build_fuzzers "${targets[@]}" >&2
rm -rf "$work"
mkdir -p "$work"

# figure LOG NAME: one of the figures that libFuzzer prints at the end.
figure() { sed -n "s/^stat::$2: *//p" "$1"; }

for target in "${targets[@]}"; do
    while (($(jobs -rp | wc -l) >= jobs)); do
        wait -n || true
    done
    run_fuzzer "$target" "$seconds" "$work/$target" >"$work/$target.log" 2>&1 ||
        touch "$work/$target.failed" &
done
wait

cat <<'END'
Every target ran under libFuzzer, AddressSanitizer and UndefinedBehaviorSanitizer, from the
inputs that are checked in. A target takes any bytes for a sequence of operations or a text, and
most compare all results with those of a plain model; `fuzz/` says of each what it tries. A fault
is a result that differs, an error that a sanitizer finds, or an input that takes more than 5
seconds. No target found one.

| target | executions | seconds | executions a second | edges covered |
|---|---|---|---|---|
END
total=0
for target in "${targets[@]}"; do
    log=$work/$target.log
    if [[ -e $work/$target.failed ]]; then
        tail -n 40 "$log" >&2
        fail "The fuzzer found a fault: $target; the input is in $work"
    fi
    executions=$(figure "$log" number_of_executed_units)
    spent=$(sed -n 's/^Done .* runs in \([0-9]*\) second.*/\1/p' "$log")
    edges=$(sed -n 's/^#[0-9]*\tDONE *cov: \([0-9]*\).*/\1/p' "$log")
    [[ $executions -gt 0 && $spent -gt 0 && $edges -gt 0 ]] || fail "No figures: $target"
    say "| $target | $executions | $spent | $((executions / spent)) | $edges |"
    total=$((total + executions))
done
say "" "$total executions in all. $(find fuzz/seeds fuzz/finds -type f 2>/dev/null | wc -l) inputs are checked in; the tests replay
them and others that are made of them."
