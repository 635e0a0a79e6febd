# The tables of docs/quantities.md, read by the library on both platforms.

# rows_checked PRESET COMMAND...: the rows that the test program checked.
rows_checked() {
    local preset=$1 xml=build/trust/grammar-$1.xml
    shift
    configure "$preset" ON >&2
    cmake --build --preset "$preset" -j "$jobs" --target test-units >&2
    [[ $preset != windows ]] || start_wine >&2
    "$@" --gtest_filter='QuantityGrammar.*' --gtest_output="xml:$xml" >&2
    sed -n 's/.*<property name="rows" value="\([0-9]*\)".*/\1/p' "$xml"
}

need googletest >&2 || fail "Cannot test: $reason"
need_windows >&2 || fail "No Windows platform: $reason"

linux_rows=$(rows_checked linux build/linux/bin/test-units)
windows_rows=$(rows_checked windows "$(wine_loader)" build/windows/bin/test-units.exe)
[[ $linux_rows -gt 0 && $linux_rows == "$windows_rows" ]] ||
    fail "Rows checked: $linux_rows on Linux, $windows_rows on Windows"

cat <<END
[quantities.md](quantities.md) publishes the language of typed quantities: what is read, dropped
and invalid, and what a bare number counts as. The library read every row of its tables; value,
validity and displayed text were those written there.

| platform | rows |
|---|---|
| Linux | $linux_rows |
| Windows | $windows_rows |
END
