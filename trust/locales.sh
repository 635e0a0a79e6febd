# All tests, with the process under other locales than "C".

# tests_passed PRESET LOCALE: as "PASSED SKIPPED", of all programs that have runs under LOCALE;
# of the default runs of the same programs for "C".
tests_passed() {
    local preset=$1 locale=$2 log=build/trust/locales-$1-$2.log names
    names=$(ctest --preset "$preset" -N | sed -n "s/.*: \([a-z]*\)_$every$/\1/p" | paste -sd '|')
    if [[ $locale == C ]]; then
        names="^($names)\$"
    else
        names="^($names)_$locale\$"
    fi
    if ! ctest --preset "$preset" -j "$jobs" -V -R "$names" </dev/null >"$log"; then
        cat "$log" >&2
        fail "The tests failed under $locale ($preset)"
    fi
    awk '/\[  PASSED  \]/ { passed += $5 } /\[  SKIPPED \]/ { skipped += $5 }
        END { print passed + 0, skipped + 0 }' "$log"
}

row() { # NAME PRESET LOCALE
    local passed skipped
    read -r passed skipped < <(tests_passed "$2" "$3")
    [[ ${passed:-0} -gt 0 ]] || fail "No test ran under $3 ($2)"
    say "| $1 | $passed | $skipped |"
}

need googletest locales >&2 || fail "Cannot test: $reason"
need_windows >&2 || fail "No Windows platform: $reason"
for preset in linux windows; do
    configure "$preset" ON >&2
    build "$preset" >&2
done
start_wine >&2

cat <<'END'
Every test program ran again with the process under locales that write 2,5 for 2.5, put narrow
blanks between thousands, and have two kinds of the letter i; on Windows with a code page of
double-byte characters. None failed. The displayed texts that the tests expect are the same bytes under all of
them. What follows the locale is the case of letters alone (`==`, `toUpper()`, `hash()`), and
the tests say where.

| locale | tests passed | skipped |
|---|---|---|
END
every=de_DE
row '`C`' linux C
for locale in de_DE fr_FR tr_TR; do
    row "\`$locale.UTF-8\`" linux "$locale"
done
every=ja_JP
row 'Windows, `C`, code page 1252' windows C
row 'Windows, `Japanese_Japan.932`, code page 932' windows ja_JP
