"""Compiles and runs the code of the pages, and compares what it prints with what they show.

    snippets.py generate FILE.cpp
    snippets.py run SCRATCH EMULATOR SNIPPETS PROGRAM...

`generate` writes one C++ file with all blocks of README.md and docs/*.md; `run` starts each of
them, from the program SNIPPETS that was made of the file, and the commands of the console blocks,
with the host programs PROGRAM. EMULATOR is what runs all of these, or empty. CONTRIBUTING.md tells
how blocks are written.
"""

import difflib
import re
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SHARED = "<!-- for the blocks below -->"

# What every block may use without saying so.
HEADERS = ["<zarnex/foundation.h>", "<cmath>", "<iostream>", "<list>"]


class Block:
    """A fenced block, the line that it begins on, and what stands in the comment above it."""

    def __init__(self, page, line, language, text, above):
        self.page = page
        self.line = line
        self.language = language
        self.text = text
        self.above = above
        self.output = ""  # of a C++ block: the text block right behind

    def __str__(self):
        return f"{self.page}:{self.line}"


def pages():
    return [ROOT / "README.md"] + sorted((ROOT / "docs").glob("*.md"))


def blocks_of(path):
    """The blocks of a page; text blocks right behind C++ are their output."""
    page = str(path.relative_to(ROOT))
    blocks = []
    above = ""          # the last line that is not blank
    inside = None
    for number, line in enumerate(path.read_text("utf-8").splitlines(), 1):
        if inside:
            if line != "```":
                inside.text += line + "\n"
                continue
            before = blocks[-1] if blocks else None
            if inside.language == "text" and before and before.language == "cpp" and above == "```":
                before.output = inside.text
            else:
                blocks.append(inside)
            inside = None
        elif line.startswith("```"):
            inside = Block(page, number, line[3:].strip(), "", above)
        if line.strip() and not inside:
            above = line.strip()
    if inside:
        sys.exit(f"{inside}: the block has no end")
    return blocks


def cpp_blocks():
    return [b for path in pages() for b in blocks_of(path) if b.language == "cpp"]


def quoted(block):
    """The file that the block quotes, or None."""
    match = re.fullmatch(r"<!-- in (\S+) -->", block.above)
    return match and match[1]


def is_program(block):
    return re.search(r"^int main\(", block.text, re.M) is not None


# --- generate -------------------------------------------------------------------------------

def generate(target):
    headers, body, cases = list(HEADERS), [], []
    page = None
    for block in cpp_blocks():
        if quoted(block):
            continue
        if block.page != page:
            if page:
                body.append("}")
            page = block.page
            body.append(f"namespace {re.sub('[^a-z]', '_', page.lower())} {{")
        code = ""
        for line in block.text.splitlines():
            include = re.fullmatch(r"#include (<.*>)", line)
            if include and include[1] not in headers:
                headers.append(include[1])
            code += "\n" if include else line + "\n"
        lines = f'#line {block.line + 1} "{block.page}"\n'
        if block.above == SHARED:
            body.append(f"{lines}{code}")
            continue
        name = f"at_{block.line}"
        if is_program(block):
            body.append(f"namespace {name} {{\n{lines}{code}}}")
            call = f"{re.sub('[^a-z]', '_', page.lower())}::{name}::main"
        else:
            body.append(f"int {name}() {{\n{lines}{code}\nreturn 0;\n}}")
            call = f"{re.sub('[^a-z]', '_', page.lower())}::{name}"
        cases.append(f'    if (name == "{block}")\n        return {call}();')
    if page:
        body.append("}")
    headers.append("<string>")
    Path(target).write_text("\n".join(
        [f"#include {header}" for header in headers] + body +
        ['#line 1 "the blocks of the pages"',
         "int main(int count, char** arguments) {",
         '    const std::string name = count == 2 ? arguments[1] : "";',
         *cases,
         "    return 99;",
         "}", ""]), "utf-8")


# --- run ------------------------------------------------------------------------------------

def output_of(command, folder):
    """(what the command wrote, its status); through a file, since Wine's server keeps pipes."""
    log = folder.parent / "output"
    with open(log, "wb") as out:
        status = subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=out,
                                stderr=subprocess.STDOUT, check=False).returncode
    text = log.read_bytes().decode("utf-8", "replace").replace("\r\n", "\n")
    return re.sub(r" +$", "", text, flags=re.M), status  # no file has blanks at the ends of lines


def difference(shown, printed):
    lines = difflib.unified_diff(shown.splitlines(), printed.splitlines(), "the page", "the run",
                                 lineterm="", n=1)
    return "\n".join(lines)


def empty_folder(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)


def block_faults(block, snippets, folder):
    file = quoted(block)
    if file:
        if block.text not in (ROOT / file).read_text("utf-8"):
            yield f"{block}: does not stand in {file}"
        return
    if block.above == SHARED:
        return
    empty_folder(folder)
    printed, status = output_of(snippets + [str(block)], folder)
    if status != 0:
        yield f"{block}: status {status}\n{printed}"
    elif printed != block.output:
        yield f"{block}: prints something else\n{difference(block.output, printed)}"
    for written in folder.iterdir():
        picture = ROOT / "docs" / "images" / written.name
        if not picture.is_file() or picture.read_text("utf-8") != written.read_text("utf-8"):
            yield f"{block}: writes {written}, which is not docs/images/{written.name}"


def console_faults(block, programs, folder):
    """Runs the commands in a folder with the examples and an empty build/."""
    empty_folder(folder)
    (folder / "build").mkdir()
    shutil.copytree(ROOT / "examples", folder / "examples")
    if not block.text.startswith("$ "):
        yield f"{block}: a console block begins with a command"
        return
    for part in re.split(r"^\$ ", block.text, flags=re.M)[1:]:
        command, _, shown = part.partition("\n")
        words = shlex.split(command)
        program = programs.get(Path(words[0]).name)
        if not program:
            yield f"{block}: no program of ours: {command}"
            continue
        printed, _ = output_of(program + words[1:], folder)
        if printed != shown:
            yield f"{block}: $ {command}\n{difference(shown, printed)}"


def run(scratch, emulator, snippets, programs):
    scratch = Path(scratch).resolve()
    emulator = [word for word in emulator.split(";") if word]
    snippets = emulator + [str(Path(snippets).resolve())]
    named = {Path(p).stem: emulator + [str(Path(p).resolve())] for p in programs}
    faults, count = [], 0
    for path in pages():
        for block in blocks_of(path):
            if block.language == "cpp":
                faults += block_faults(block, snippets, scratch / "run")
            elif block.language == "console" and programs:
                faults += console_faults(block, named, scratch / "run")
            elif block.language not in ("text", "sh", "cmake", "console"):
                faults.append(f"{block}: a language that nothing is known of: {block.language}")
                continue
            else:
                continue
            count += 1
    if count == 0:
        faults.append("no blocks")
    print("\n".join(faults) if faults else f"{count} blocks do what the pages show.")
    return 1 if faults else 0


if __name__ == "__main__":
    if sys.argv[1:2] == ["generate"] and len(sys.argv) == 3:
        generate(sys.argv[2])
    elif sys.argv[1:2] == ["run"] and len(sys.argv) >= 5:
        sys.exit(run(*sys.argv[2:5], sys.argv[5:]))
    else:
        sys.exit(__doc__)
