"""How good the tests are: changes the library in small ways, one at a time, and looks which
changes the tests notice.

    python3 tools/mutate --mutants 600      # a sample; prints Markdown
    python3 tools/mutate --retry            # the survivors of the last run again, with new tests

A run can be stopped and goes on where it was as long as the tree is the same; --keep and --retry
are for work on the tests.
"""

import argparse
import hashlib
import json
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.dont_write_bytecode = True

import report
from mutants import mutants_of
from workshop import Bench, Workshop

ROOT = Path(__file__).resolve().parents[2]
LEAST = 30  # of a folder, where it has so many


def sources():
    for file in sorted((ROOT / "zarnex").rglob("*")):
        if file.suffix in (".cpp", ".h") and "windows" not in file.parts:
            yield str(file.relative_to(ROOT))


def candidates(count, seed):
    """For each folder its share of the sample, and its mutants, one a line, in the order of
    their ranks."""
    folders = {}
    for file in sources():
        if file.count("/") > 1:
            found = mutants_of(file, (ROOT / file).read_text())
            folders.setdefault(file.split("/")[1], []).extend(found)
    for mutants in folders.values():
        mutants.sort(key=lambda mutant: mutant.rank(seed), reverse=True)
        mutants[:] = list({(m.file, m.line): m for m in mutants}.values())
        mutants.sort(key=lambda mutant: mutant.rank(seed))
    total = sum(map(len, folders.values()))
    for name, mutants in folders.items():
        share = max(LEAST, round(count * len(mutants) / total))
        yield name, min(share, len(mutants)), mutants


def digest():
    """Of everything that has a say in the outcome."""
    made = hashlib.sha1()
    for top in ("zarnex", "tests", "fuzz", "examples"):
        for file in sorted((ROOT / top).rglob("*")):
            if file.is_file():
                made.update(str(file.relative_to(ROOT)).encode() + file.read_bytes())
    return made.hexdigest()


def reason_of(key, reasons):
    file, source, change, _ = key.split("\t")
    return reasons.get((file, change, source))


class Results:
    """A line a mutant, in a file that is read again when a run goes on."""

    def __init__(self, path, keep, retry, reasons):
        self.path, self.rows, self.lock = path, {}, threading.Lock()
        state = digest()
        text = path.read_text() if path.exists() else ""
        lines = [json.loads(line) for line in text.splitlines()]
        if keep or retry or lines and lines[0] == state:
            self.rows = {row["key"]: row for row in lines[1:]}
        if retry:
            self.rows = {k: r for k, r in self.rows.items()
                         if r["outcome"] != "survived" or reason_of(k, reasons)}
        path.write_text("".join(json.dumps(line) + "\n" for line in [state, *self.rows.values()]))

    def add(self, mutant, outcome, by, seconds):
        row = {"key": mutant.key, "outcome": outcome, "by": by, "seconds": round(seconds, 2)}
        with self.lock:
            self.rows[mutant.key] = row
            with self.path.open("a") as file:
                file.write(json.dumps(row) + "\n")


def judge(results, benches, folders):
    """Tries mutants of each folder until its share of them counts; those that do."""
    counted, lock = [], threading.Lock()

    def work(bench, wanted, mutants):
        while True:
            with lock:
                if wanted[0] <= 0 or not mutants:
                    return
                mutant = mutants.pop(0)
                wanted[0] -= 1  # taken back if it does not count
            if mutant.key not in results.rows:
                begin = time.monotonic()
                results.add(mutant, *bench.try_mutant(mutant), time.monotonic() - begin)
            row = results.rows[mutant.key]
            with lock:
                if row["outcome"] in ("killed", "survived"):
                    counted.append(mutant)
                else:
                    wanted[0] += 1
                print(f"{len(counted)} {row['outcome']} {row['by']} {row['seconds']} s: "
                      f"{mutant.file}:{mutant.line} {mutant.change}", file=sys.stderr, flush=True)

    slices = 10  # of each folder in turn, so that a run that is stopped tells of all
    for number in range(1, slices + 1):
        for _, share, mutants in folders:
            wanted = [share * number // slices - share * (number - 1) // slices]
            with ThreadPoolExecutor(len(benches)) as pool:
                for result in [pool.submit(work, bench, wanted, mutants) for bench in benches]:
                    result.result() # with the error, if there was one
    return counted


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--mutants", type=int, default=600)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folder", help="of this folder only")
    parser.add_argument("--benches", type=int, default=2, help="mutants tried at a time")
    parser.add_argument("--work", default=ROOT / "build/mutation")
    parser.add_argument("--keep", action="store_true", help="go on although the tree changed")
    parser.add_argument("--retry", action="store_true",
                        help="as well, and try again what survived without a reason")
    options = parser.parse_args()

    folders = [row for row in candidates(options.mutants, options.seed)
               if options.folder in (None, row[0])]
    shop = Workshop(ROOT, options.work)
    shop.prepare()
    reasons = report.read_reasons(Path(__file__).with_name("survivors.txt"))
    results = Results(shop.work / "results.jsonl", options.keep, options.retry,
                      reasons)
    benches = [Bench(shop, number + 1) for number in range(options.benches)]
    counted = judge(results, benches, folders)
    report.write(counted, results.rows, reasons)


main()
