"""help.py SOURCES SCRATCH PROGRAM COMMAND...

What the program tells of itself is true: its help fits the screen and shows three calls that
work, its page shows calls with the output that they have, and help, page and completion know
the same options.
"""

import os
import re
import shutil
import subprocess
import sys

sources, scratch, program = sys.argv[1:4]
command = [part for part in sys.argv[4:] if part]
folder = os.path.join(scratch, "help-" + program)
faults = []


def prepare():
    """A folder with the example files, and another with all programs under their names."""
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(os.path.join(sources, "examples", "motifs"), folder)
    path = os.path.join(folder, "bin")
    os.mkdir(path)
    with open(os.path.join(path, program), "w") as script:
        script.write("#!/bin/sh\nexec " + " ".join(f"'{part}'" for part in command) + ' "$@"\n')
    os.chmod(os.path.join(path, program), 0o755)
    os.environ["PATH"] = path + ":" + os.environ["PATH"]


def run(call):
    """The output of both streams, and the status. Not through pipes, as Wine's server keeps them."""
    output = os.path.join(folder, "output")
    with open(output, "wb") as file:
        status = subprocess.run(["sh", "-c", call], cwd=folder, stdin=subprocess.DEVNULL,
                                stdout=file, stderr=subprocess.STDOUT).returncode
    with open(output, encoding="utf-8") as file:
        return file.read(), status


def options(text):
    return set(re.findall(r"(?<![\w-])--[a-z-]+", text)) - {"--"}


def check_help():
    text, _ = run(program + " --help")
    lines = text.splitlines()
    if len(lines) > 24 or max(map(len, lines)) > 80:
        faults.append(f"--help: {len(lines)} lines of up to {max(map(len, lines))} characters")
    calls = [line.strip() for line in text[text.rindex("\n\n"):].splitlines() if line.strip()]
    if len(calls) != 3 or not all(program in call for call in calls):
        faults.append(f"--help: not three calls at the end: {calls}")
    for call in calls:
        output, status = run(call)
        if status != 0 or not output or output.startswith(program + ":"):
            faults.append(f"--help: {call}\nstatus {status}\n{output}")
    if "--help-motif" in text:
        motif, _ = run(program + " --help-motif")
        if max(map(len, motif.splitlines())) > 80:
            faults.append("--help-motif: longer lines than 80 characters")
    return options(text)


def check_page():
    """Returns its options."""
    with open(os.path.join(sources, "docs", "man", program + ".1"), encoding="utf-8") as file:
        page = file.read()
    for escape, plain in {r"\-": "-", r"\(dq": '"', r"\(aq": "'", r"\(ha": "^", r"\(ti": "~",
                          r"\e": "\\"}.items():
        page = page.replace(escape, plain)
    version, _ = run(program + " --version")
    if f'"Zarnex {version.split()[1]}"' not in page:
        faults.append("the page is of another version than " + version)
    examples = 0
    for block in re.findall(r"^\.EX\n(.*?)^\.EE", page, re.M | re.S):
        for call, shown in re.findall(r"^\$ (.*\n)((?:(?!\$ ).*\n)*)", block, re.M):
            examples += 1
            output, _ = run(call)
            if output != shown:
                faults.append(f"the page: {call}{shown}but it is\n{output}")
    if examples < 3:
        faults.append(f"{examples} examples found in the page")
    return options(page)


def check_completion(known):
    with open(os.path.join(sources, "examples", "completion", program), encoding="utf-8") as file:
        offered = re.search(r'compgen -W "(--[^"]*)"', file.read())
    if options(offered.group(1)) != known:
        faults.append(f"the completion offers {offered.group(1)}, the help {sorted(known)}")


prepare()
known = check_help()
told = check_page()
if told != known:
    faults.append(f"the page tells {sorted(told)}, the help {sorted(known)}")
check_completion(known)
print("\n".join(faults))
sys.exit(1 if faults else 0)
