# What the tests run of the library, and which small changes of it they notice.

need googletest python3 >&2 || fail "Cannot test: $reason"
configure coverage ON >&2
cmake --build --preset coverage -j "$jobs" >&2
find build/coverage -name '*.gcda' -delete # the counts of earlier runs
ctest --preset coverage -j "$jobs" </dev/null >&2

cat <<'END'
All tests ran with the library built to count its lines and branches (Linux, no optimisation;
branches that only exceptions take left out).

END
python3 tools/coverage.py build/coverage
say ""
python3 tools/mutate --mutants "${ZARNEX_MUTANTS:-600}"
