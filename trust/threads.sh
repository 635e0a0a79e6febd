# Everything at once in many threads, on both platforms and under ThreadSanitizer.

threads=2 # for each kind of work
work=build/trust/threads
seconds_linux=60 seconds_tsan=20 seconds_windows=60

# crowd PRESET SECONDS COMMAND...: what the threads did, in $work/PRESET.
crowd() {
    local preset=$1 seconds=$2
    shift 2
    configure "$preset" ON >&2
    cmake --build --preset "$preset" -j "$jobs" --target test-threads >&2
    "$@" "$seconds" "$threads" | tr -d '\r' >"$work/$preset"
}

sum() { # KIND FILE: of the numbers in the lines of a kind
    awk -F '\t' -v kind="$1" '$1 == kind { sum += $3 } END { print sum + 0 }' "$2"
}

need googletest >&2 || fail "Cannot configure the tests: $reason"
need_windows >&2 || fail "No Windows platform: $reason"
rm -rf "$work"
mkdir -p "$work"

crowd linux $seconds_linux build/linux/bin/test-threads

runner=()
! setarch -R true 2>/dev/null || runner=(setarch -R)
export TSAN_OPTIONS="halt_on_error=0 log_path=$PWD/$work/reports"
status=0
crowd tsan $seconds_tsan "${runner[@]}" build/tsan/bin/test-threads || status=$?
reports=$(cat "$work"/reports.* 2>/dev/null | grep -c 'WARNING: ThreadSanitizer' || true)
if ((status != 0 || reports != 0)); then
    cat "$work"/reports.* >&2 || true
    fail "ThreadSanitizer: $reports reports, status $status"
fi

start_wine >&2
crowd windows $seconds_windows "$(wine_loader)" build/windows/bin/test-threads.exe

kinds=$(grep -c '^work' "$work/linux")
cat <<END
$((kinds * threads)) threads at once, $threads for each kind of work, each checking every result: $seconds_linux s on Linux,
$seconds_tsan s under ThreadSanitizer, which reported $reports races and lock orders, and $seconds_windows s under Wine. No result
was wrong, no thread stood still; a watchdog would have ended the trial.

| operations | Linux | ThreadSanitizer | Windows |
|---|---|---|---|
END
paste "$work/linux" "$work/tsan" "$work/windows" |
    awk -F '\t' '$1 == "work" { print "| " $2 " | " $3 " | " $6 " | " $9 " |" }'
say "| **all** | $(sum work "$work/linux") | $(sum work "$work/tsan") | $(sum work "$work/windows") |" ""
cat <<END
Meanwhile one thread held each of the process-wide locks in turn ($(awk -F '\t' '$1 == "held" { printf "%s%s %s times", sep, $2, $3; sep = ", " }' "$work/linux") on
Linux). Only what waits for the held lock stood still; all the rest went on. A sort whose callback
reads a quantity waits for the scanner while it holds the lock of the sorts, so other sorts
may wait along with it.
END
