# What the tests run of the library, and which small changes of it they notice.

need googletest python3 >&2 || fail "Cannot test: $reason"
configure coverage ON >&2
# Without the host that names all exports: counting adds some.
programs=$(ninja -C build/coverage -t targets all |
    sed -n 's/^\(\(test\|replay\|docs\)-[a-z0-9_-]*\): phony$/\1/p' | grep -v '^test-abi')
# shellcheck disable=SC2086 # one word a program
cmake --build --preset coverage -j "$jobs" --target $programs zarnex-units zarnex-stitchplan >&2
find build/coverage -name '*.gcda' -delete # the counts of earlier runs
ctest --preset coverage -j "$jobs" </dev/null >&2

cat <<'END'
All tests ran with the library built to count its lines and branches (Linux, no optimisation;
branches that only exceptions take left out).

END
python3 tools/coverage.py build/coverage
say ""
python3 tools/mutate --mutants "${ZARNEX_MUTANTS:-600}"
