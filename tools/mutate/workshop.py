"""A copy of the tree, its build, and benches on which mutants are compiled and tested."""

import collections
import filecmp
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess
import threading
from pathlib import Path

COPIED = ["CMakeLists.txt", "cmake", "docs", "examples", "fuzz", "tests", "trust", "zarnex"]

# Without optimisation a host inlines nothing. With this it also keeps no copies of the inline
# members, so that a mutant in a header needs the library compiled and not the tests.
HOSTS_TAKE_ALL = """
#if !defined(ZARNEX_BUILDING_FOUNDATION)
#undef ZARNEX_INLINE
#define ZARNEX_INLINE __attribute__((gnu_inline)) inline
#endif
"""

MOST_UNITS = {"zarnex": 3, "tests": 2, "fuzz": 2}  # compiled for a mutant in a header

# Whose tests run code of a folder, beside its own and those of memory.
REACH = {"platform": ["strings", "runtime", "geometry", "units", "ids"],
         "runtime": ["containers", "geometry", "units"],
         "containers": ["strings", "interop", "geometry", "transforms", "units", "ids"],
         "strings": ["interop", "units", "ids"],
         "bigint": [],
         "geometry": ["degenerate", "transforms", "interop", "stitchplan"],
         "transforms": ["degenerate", "interop", "stitchplan"],
         "units": ["interop", "stitchplan"],
         "ids": ["interop"],
         "interop": []}

# What does not run the library's code, and the runs under locales except those that may matter.
UNDER_LOCALE = re.compile("_[a-z]{2}_[A-Z]{2}$")
LEFT_OUT = re.compile(
    "abi|boundary|debugger|docs|package|programs|threads|.*_program_fuzz|"
    "(?!strings|units).*_[a-z]{2}_[A-Z]{2}$|.*_fr_FR$")


def run(command, **options):
    return subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          **options)


class Unit:
    """A source with the command that compiles it."""

    def __init__(self, entry, tree):
        self.source = os.path.relpath(entry["file"], tree)
        self.command = shlex.split(entry["command"])
        self.object = self.command[self.command.index("-o") + 1]


class Workshop:
    def __init__(self, root, work):
        self.root, self.work = Path(root), Path(work).resolve()
        self.tree, self.plain = self.work / "tree", self.work / "plain"

    def prepare(self):
        self.copy_tree()
        self.build()
        file = next((self.plain / "lib").glob("libzarnex-foundation.so.*.*.*"))
        self.library = str(file.relative_to(self.plain))
        entries = json.loads((self.plain / "compile_commands.json").read_text())
        units = [Unit(entry, self.tree) for entry in entries]
        self.units = {unit.source: unit for unit in units if (self.plain / unit.object).exists()}
        self.references, self.lock = set(), threading.Lock()
        self.precompile()
        self.links = self.read_links()
        self.lines = self.read_lines()
        self.tests = self.read_tests()

    # --- the copy and its build -----------------------------------------------------------

    def copy_tree(self):
        wanted = set()
        for name in COPIED:
            source = self.root / name
            files = [source] if source.is_file() else source.rglob("*")
            wanted |= {f.relative_to(self.root) for f in files if f.is_file()}
        for old in [f for f in self.tree.rglob("*") if f.is_file()]:
            if old.relative_to(self.tree) not in wanted:
                old.unlink()
        for file in wanted:
            content = (self.root / file).read_bytes()
            if str(file) == "zarnex/config.h":
                content += HOSTS_TAKE_ALL.encode()
            copy = self.tree / file
            if not copy.exists() or copy.read_bytes() != content:
                copy.parent.mkdir(parents=True, exist_ok=True)
                copy.write_bytes(content)
                shutil.copymode(self.root / file, copy)

    def build(self):
        if not (self.plain / "build.ninja").exists():
            # -ftest-coverage notes which lines each object has, and changes no code.
            flags = f"-O0 -g0 -ftest-coverage -ffile-prefix-map={self.tree}/="
            self.must(["cmake", "-S", self.tree, "-B", self.plain, "-G", "Ninja",
                       "-DCMAKE_BUILD_TYPE=Debug", f"-DCMAKE_CXX_FLAGS_DEBUG={flags}",
                       "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"])
        targets = self.must(["ninja", "-t", "targets", "all"], cwd=self.plain)
        programs = re.findall(r"^(test-(?!abi|boundary|threads)[\w-]+): phony", targets, re.MULTILINE)
        self.must(["ninja", "-j2", *programs, "zarnex-units", "zarnex-stitchplan"],
                  cwd=self.plain)

    @staticmethod
    def must(command, **options):
        done = run(command, **options)
        if done.returncode != 0:
            raise SystemExit(f"{' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
        return done.stdout

    def read_links(self):
        """The link command of the library and of each test program, by its output."""
        links = {}
        outputs = [self.library] + [str(p.relative_to(self.plain))
                                    for kind in ("test-*", "replay-*")
                                    for p in (self.plain / "bin").glob(kind)]
        for output in outputs:
            commands = self.must(["ninja", "-t", "commands", output], cwd=self.plain)
            line = next(c for c in commands.splitlines() if f" -o {output} " in c)
            words = shlex.split(line)
            first = next(i for i, word in enumerate(words) if word.endswith("c++"))
            links[output] = words[first:words.index("&&", first)]
        return links

    def read_lines(self):
        """Which units have code of a line: {file: {line: [source]}}."""
        lines = collections.defaultdict(lambda: collections.defaultdict(list))
        for unit in self.units.values():
            if unit.source.split("/")[0] in MOST_UNITS:
                notes = (self.plain / unit.object).with_suffix(".gcno")
                kept = notes.with_suffix(".lines")
                if not kept.exists() or kept.stat().st_mtime < notes.stat().st_mtime:
                    found = run(["gcov", "--json-format", "--stdout", str(notes)]).stdout
                    files = json.loads(found or '{"files": []}')["files"]
                    kept.write_text(json.dumps({
                        file["file"]: sorted({line["line_number"] for line in file["lines"]})
                        for file in files if file["file"].startswith("zarnex/")}))
                for file, numbers in json.loads(kept.read_text()).items():
                    for number in numbers:
                        lines[file][number].append(unit.source)
        return lines

    # --- compiling ------------------------------------------------------------------------

    def precompile(self):
        """The standard headers, which would take half of the time of each compilation."""
        self.standard = self.work / "standard.h"
        names = set()
        for file in (self.tree / "zarnex").rglob("*.[hc]*"):
            if "windows" not in file.parts:
                names |= set(re.findall(r"^#include <[a-z_]+>$", file.read_text(), re.MULTILINE))
        names -= {"#include <iostream>", "#include <immintrin.h>"}
        self.standard.write_text("\n".join(sorted(names)) + "\n")
        unit = next(u for s, u in self.units.items() if s.startswith("zarnex/"))
        if not self.compile(unit, self.tree, f"{self.standard}.gch", header=self.standard):
            raise SystemExit("The standard headers cannot be precompiled")

    def compile(self, unit, tree, made, header=None):
        """Whether the unit compiles in the tree."""
        command = [word.replace(str(self.tree), str(tree)) for word in unit.command]
        command[command.index("-o") + 1] = str(made)
        if header:
            command[-2:] = ["-x", "c++-header", str(header)]
        elif unit.source.startswith("zarnex/"):
            command[1:1] = ["-include", str(self.standard)]
        return run(command + ["-w"], cwd=self.plain).returncode == 0

    def reference(self, unit):
        """The object of the unit without a mutant, made as those with one are."""
        with self.lock:
            made = self.work / "reference" / (unit.source.replace("/", "_") + ".o")
            if unit.source not in self.references:
                self.references.add(unit.source)
                made.parent.mkdir(exist_ok=True)
                self.compile(unit, self.tree, made)
            return made

    # --- the tests ------------------------------------------------------------------------

    def read_tests(self):
        listed = json.loads(self.must(["ctest", "--show-only=json-v1"], cwd=self.plain))
        tests = []
        for entry in listed["tests"]:
            if LEFT_OUT.match(entry["name"]) or "command" not in entry:
                continue
            properties = {p["name"]: p["value"] for p in entry["properties"]}
            command = entry["command"]
            if "--gtest_brief=1" in command:
                command = command + ["--gtest_fail_fast"]
            environment = dict(e.split("=", 1) for e in properties.get("ENVIRONMENT", []))
            tests.append({"name": entry["name"], "command": command, "environment": environment})
        bench = Bench(self, 0)
        for test in tests:
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            if bench.fails(test, self.plain / "lib", 600):
                raise SystemExit(f"{test['name']} fails without any mutant")
            test["seconds"] = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before
        return tests

    def tests_for(self, file):
        """The tests that can reach the file: those of its folder, then of others, the quick
        ones first. Under locales only those of the folder."""
        folder = file.split("/")[1]
        reach = [folder, *REACH[folder], "memory-requests", "memory"]

        def name(test):
            return test["name"].split("_")[0]

        chosen = [test for test in self.tests if name(test) in reach and (
            name(test) == folder or not UNDER_LOCALE.search(test["name"]))]
        return sorted(chosen, key=lambda test: (reach.index(name(test)), test["seconds"]))

    # --- what a mutant needs --------------------------------------------------------------

    def units_for(self, mutant):
        if mutant.file.endswith(".cpp"):
            return [self.units[mutant.file]] if mutant.file in self.units else []
        of_lines = self.lines.get(mutant.file, {})
        # A statement may begin some lines before; tables have no code at all.
        at = next((n for n in range(mutant.line, mutant.line - 6, -1) if n in of_lines), None)
        sources = set(of_lines[at]) if at else self.includers(mutant.file)
        stem, folder = Path(mutant.file).stem, mutant.file.split("/")[1]
        chosen = []
        for top, most in MOST_UNITS.items():
            fitting = [s for s in sources if s.startswith(top + "/")]
            fitting.sort(key=lambda s: (not Path(s).stem.startswith(stem),
                                        s.split("/")[1] != folder, s))
            chosen += fitting[:most]
        return [self.units[s] for s in chosen]

    def includers(self, file):
        if not hasattr(self, "dependencies"):
            self.dependencies = collections.defaultdict(set)
            objects = {unit.object: unit.source for unit in self.units.values()}
            source = None
            for line in self.must(["ninja", "-t", "deps"], cwd=self.plain).splitlines():
                if line[:1].strip():
                    source = objects.get(line.split(":")[0])
                elif source and line.strip().startswith(str(self.tree)):
                    self.dependencies[os.path.relpath(line.strip(), self.tree)].add(source)
        return {s for s in self.dependencies[file] if s.startswith("zarnex/")}


class Bench:
    """A place for one mutant at a time."""

    def __init__(self, shop, number):
        self.shop = shop
        self.place = shop.work / f"bench{number}"
        self.tree, self.lib = self.place / "tree", self.place / "lib"
        shutil.rmtree(self.place, ignore_errors=True)
        self.lib.mkdir(parents=True)
        (self.place / "scratch").mkdir()

    def try_mutant(self, mutant):
        """(outcome, by): killed by a test, survived, same (no other code), refused."""
        shop = self.shop
        if not self.tree.exists():
            shutil.copytree(shop.tree, self.tree)
        file = self.tree / mutant.file
        content = (shop.tree / mutant.file).read_text()
        units = shop.units_for(mutant)
        try:
            file.write_text(mutant.apply(content))
            changed = []
            for unit in units:
                if not shop.compile(unit, self.tree, self.made(unit)):
                    return "refused", ""
                if not filecmp.cmp(self.made(unit), shop.reference(unit), shallow=False):
                    changed.append(unit)
            if not changed:
                return "same", ""
            programs = self.link(changed)
            if programs is None:
                return "refused", ""
            for test in shop.tests_for(mutant.file):
                how = self.fails(test, self.lib, int(2 + 10 * test["seconds"]), programs)
                if how:
                    return "killed", f"{test['name']}{how}"
            return "survived", ""
        finally:
            file.write_text(content)

    def made(self, unit):
        return self.place / (unit.source.replace("/", "_") + ".o")

    def link(self, units):
        """Links the library and the programs of changed units, these first, so that theirs are
        the copies of inline functions that the linker takes. The programs by their names."""
        made = {}
        for output, command in self.shop.links.items():
            mine = [u for u in units if u.object in command]
            if not mine:
                continue
            command = list(command)
            for unit in mine:
                command.remove(unit.object)
            at = next(i for i, word in enumerate(command) if word.endswith(".o"))
            command[at:at] = [str(self.made(unit)) for unit in mine]
            target = self.lib / ("libzarnex-foundation.so.1" if output == self.shop.library
                                 else Path(output).name)
            command[command.index("-o") + 1] = str(target)
            if run(command, cwd=self.shop.plain).returncode != 0:
                return None
            made[Path(output).name] = str(target)
        if Path(self.shop.library).name not in made:
            (self.lib / "libzarnex-foundation.so.1").unlink(missing_ok=True)
        return made

    def fails(self, test, lib, limit, programs=()):
        """How the test fails, empty if it passes. The limit is in seconds of the processor,
        which others may use as well; a test that only waits gets some time more."""
        name = Path(test["command"][0]).name
        command = [programs[name] if name in programs else test["command"][0]]
        for word in test["command"][1:]:
            if word.startswith("-DSCRATCH="):
                word = f"-DSCRATCH={self.place / 'scratch'}"
            command.append(word)
        process = subprocess.Popen(
            command, cwd=self.place / "scratch", start_new_session=True,
            preexec_fn=lambda: set_limits(limit),
            env={**os.environ, **test["environment"], "LD_LIBRARY_PATH": str(lib)},
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            status = process.wait(30 + 10 * limit)
        except subprocess.TimeoutExpired:
            status = -signal.SIGXCPU
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        return " (time limit)" if status == -signal.SIGXCPU else " (status)" if status else ""


def set_limits(seconds):
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (200 << 20, 200 << 20))
