"""The figures of a run as Markdown."""

import collections
import re
import sys


def read_reasons(path):
    """{(file, change, line): reason}: records of three lines, blank lines between them."""
    reasons = {}
    for record in path.read_text().split("\n\n") if path.exists() else []:
        rows = [row.strip() for row in record.split("\n") if row.strip() and row[0] != "#"]
        if rows:
            head, source, reason = rows
            file, change = head.split(": ", 1)
            reasons[file, change, source] = reason
    return reasons


def per_cent(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else ""


def write(mutants, rows, reasons):
    table = collections.defaultdict(collections.Counter)
    explained, open_ones, used = [], [], set()
    for mutant in mutants:
        counts = table[mutant.file.split("/")[1]]
        counts["all"] += 1
        if rows[mutant.key]["outcome"] == "killed":
            counts["killed"] += 1
            continue
        reason = reasons.get((mutant.file, mutant.change, mutant.source))
        (explained if reason else open_ones).append((mutant, reason))
        counts["explained" if reason else "open"] += 1
        used.add((mutant.file, mutant.change, mutant.source))
    total = sum(table.values(), collections.Counter())
    spent = sum(rows[mutant.key]["seconds"] for mutant in mutants)

    print(f"{total['all']} small changes were made to the library, one at a time: operators, "
          f"comparisons, numbers and\nconditions changed, statements left out; a sample fixed by "
          f"a seed, one a line. Counted are those that\ncompile to other code. The tests noticed "
          f"{total['killed']}, that is {per_cent(total['killed'], total['all'])}; of the others, "
          f"{total['explained']} are explained below\nand {total['open']} are open. "
          f"{spent / max(1, total['all']):.1f} s a change.\n")
    print("| folder | changes | noticed | | explained | open |\n|---|---|---|---|---|---|")
    for name, counts in [*sorted(table.items()), ("total", total)]:
        print(f"| {name} | {counts['all']} | {counts['killed']} | "
              f"{per_cent(counts['killed'], counts['all'])} | {counts['explained']} | "
              f"{counts['open']} |")
    listing("Open", open_ones)
    listing("Not noticed, and why", explained)
    for file, change, source in sorted(set(reasons) - used):
        print(f"not in this sample: {file}: {change}: {source}", file=sys.stderr)


def listing(heading, entries):
    if not entries:
        return
    print(f"\n{heading}:\n")
    for mutant, reason in sorted(entries, key=lambda entry: (entry[0].file, entry[0].line)):
        change = mutant.change.replace("*", "\\*") if "`" not in mutant.change else mutant.change
        change = re.sub("`([^`]*'[^`]*)`", r"``\1``", change)  # else Doxygen misreads it
        print(f"- {mutant.file}:{mutant.line}: {change}" + (f": {reason}" if reason else ""))
