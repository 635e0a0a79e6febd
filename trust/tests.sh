# What the tests run of the library, and which small changes of it they notice.

coverage_json=$PWD/build/trust/coverage.json

# covered LINES|BRANCHES: a row a folder of zarnex/ and the total, from the summary of gcovr.
coverage_table() {
    python3 - "$coverage_json" <<'END'
import collections
import json
import sys

folders = collections.defaultdict(collections.Counter)
without = []
for file in json.load(open(sys.argv[1]))["files"]:
    counts = collections.Counter(
        lines=file["line_total"], run=file["line_covered"],
        branches=file["branch_total"], taken=file["branch_covered"])
    folders[file["filename"].split("/")[1]] += counts
    if counts["lines"] != counts["run"]:
        without.append((counts["lines"] - counts["run"], file["filename"]))

print("| folder | lines | run | | branches | taken | |\n|---|---|---|---|---|---|---|")
total = sum(folders.values(), collections.Counter())
for name, c in [*sorted(folders.items()), ("total", total)]:
    print(f"| {name} | {c['lines']} | {c['run']} | {100 * c['run'] / c['lines']:.1f} % | "
          f"{c['branches']} | {c['taken']} | {100 * c['taken'] / max(1, c['branches']):.1f} % |")
print("\nLines that no test runs:",
      ", ".join(f"{file} {count}" for count, file in sorted(without, key=lambda w: (-w[0], w[1]))))
END
}

need googletest gcovr >&2 || fail "Cannot measure: $reason"
configure coverage ON >&2
build coverage >&2
find build/coverage -name '*.gcda' -delete
ctest --preset coverage -j "$jobs" </dev/null >&2
gcovr --root . --filter zarnex/ --exclude-throw-branches --exclude-unreachable-branches \
    --json-summary "$coverage_json" build/coverage >&2

cat <<'END'
All tests ran with the library built to count its lines and branches (g++, no optimisation;
branches that only exceptions take left out).

END
coverage_table
say ""
python3 tools/mutate --mutants "${ZARNEX_MUTANTS:-600}"
