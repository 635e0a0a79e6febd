"""What has run of the library, from a build whose objects count: lines and branches of each
folder of zarnex/, as Markdown.

    python3 tools/coverage.py build/coverage

Branches that only exceptions take are left out. The instances of a template, and the copies of
an inline function, count as one.
"""

import collections
import concurrent.futures
import json
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]


def counts_of(notes):
    """[(file, line, count, [count of each branch])] of one object."""
    run = subprocess.run(["gcov", "--json-format", "--stdout", "-b", str(notes)],
                         capture_output=True, text=True, stdin=subprocess.DEVNULL, cwd=ROOT)
    rows = []
    for file in json.loads(run.stdout or '{"files": []}')["files"]:
        path = (ROOT / file["file"]).resolve()
        if ROOT / "zarnex" in path.parents:
            for line in file["lines"]:
                branches = [b["count"] for b in line["branches"] if not b["throw"]]
                rows.append((str(path.relative_to(ROOT)), line["line_number"],
                             line["count"], branches))
    return rows


def added(a, b):
    """Sums by place; an instance of a template may have fewer branches than another."""
    longer, shorter = (a, b) if len(a) >= len(b) else (b, a)
    return [n + (shorter[i] if i < len(shorter) else 0) for i, n in enumerate(longer)]


def per_cent(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else ""


def main():
    lines = collections.Counter()
    branches = collections.defaultdict(list)
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for rows in pool.map(counts_of, sorted(Path(sys.argv[1]).rglob("*.gcno"))):
            for file, line, count, taken in rows:
                lines[file, line] += count
                branches[file, line] = added(branches[file, line], taken)

    folders = collections.defaultdict(collections.Counter)
    without = collections.Counter()
    for (file, line), count in lines.items():
        taken = branches[file, line]
        folders[file.split("/")[1]] += collections.Counter(
            lines=1, run=count > 0, branches=len(taken), taken=sum(n > 0 for n in taken))
        without[file] += count == 0
    total = sum(folders.values(), collections.Counter())
    if total["run"] == 0:
        raise SystemExit("Nothing has run")

    print("| folder | lines | run | | branches | taken | |\n|---|---|---|---|---|---|---|")
    for name, n in [*sorted(folders.items()), ("all", total)]:
        print(f"| {name} | {n['lines']} | {n['run']} | {per_cent(n['run'], n['lines'])} | "
              f"{n['branches']} | {n['taken']} | {per_cent(n['taken'], n['branches'])} |")
    missed = [f"{file} {count}" for file, count in without.most_common() if count]
    print("\nLines that nothing ran: " + (", ".join(missed) or "none") + ".")


main()
