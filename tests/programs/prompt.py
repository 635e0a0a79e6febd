"""prompt.py PROGRAM SCRATCH edits|plain

The prompt of zarnex-units on a terminal of its own: a table of what is typed and answered, then
the history from run to run.
"""

import os
import pty
import select
import shutil
import subprocess
import sys
import termios
import time

program, scratch, kind = sys.argv[1:4]
edits = kind == "edits"
state = os.path.join(scratch, "state")
history = os.path.join(state, "zarnex", "units_history")
faults = []
patience = 120  # seconds, until a program that says nothing more is taken for hung


class Session:
    """A run of the program on a terminal."""

    def __init__(self, *arguments, folder=state):
        self.pid, self.terminal = pty.fork()
        if self.pid == 0:
            os.environ.update(TERM="xterm", XDG_STATE_HOME=folder)
            os.execv(program, [program, *arguments])
        self.until("> ")

    def read(self):
        """What comes next; nothing when the program has ended."""
        if not select.select([self.terminal], [], [], patience)[0]:
            os.kill(self.pid, 9)
            sys.exit("no answer from the prompt")
        try:
            return os.read(self.terminal, 4096).decode(errors="replace")
        except OSError:
            return ""

    def until(self, end):
        """The output up to `end`, as lines."""
        output = ""
        while not output.endswith(end):
            more = self.read()
            if not more:
                faults.append(f"ended after {output!r} instead of {end!r}")
                break
            output += more
        return output.replace("\r\n", "\n").removesuffix(end)

    def type(self, keys):
        while edits and termios.tcgetattr(self.terminal)[3] & termios.ICANON:
            time.sleep(0.01)  # else the terminal would show the keys once more
        os.write(self.terminal, keys.encode())

    def ask(self, text):
        """What is answered to a line."""
        self.type(text + "\r")
        return self.until("\n> ").partition("\n")[2]

    def end(self, keys):
        """The status after these keys."""
        self.type(keys)
        while self.read():
            pass
        return os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1])


def called(*arguments):
    """What the program prints when it is called."""
    return subprocess.run([program, *arguments], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout.removesuffix("\n")


def expect(what, found, wanted):
    if found != wanted:
        faults.append(f"{what}: {found!r} instead of {wanted!r}")


shutil.rmtree(state, ignore_errors=True)

session = Session("--unit", "cm")
for text, answer in [
    ("2.5 mm", called("2.5 mm")),
    ("  40 per sq cm ", called("40 per sq cm")),
    ("3", called("--unit", "cm", "3")),
    ("wide", called("--check", "wide")),
    ("5″", called("--check", "5″")),
    ("1 1/2 in", called("--unit", "cm", "--check", "1 1/2 in") + "\n" +
     called("--unit", "cm", "1 1/2 in")),
]:
    expect(text, session.ask(text), answer)
expect("help", "counts in cm." in session.ask("help"), True)
if edits:
    session.type("7 wrong\x03")  # Ctrl-C gives up the line
    session.until("\n> ")
    expect("after Ctrl-C", session.ask("2 mm"), called("2 mm"))
expect("quit", session.end("quit\r"), 0)
expect("Ctrl-D", Session().end("\x04"), 0)

if edits:
    session = Session()
    expect("the last line but one", session.ask("\x1b[A\x1b[A"), called("2 mm"))
    session.end("\x04")
    expect("mode of the history", os.stat(history).st_mode & 0o777, 0o600)

    with open(history, "a") as file:
        file.writelines(f"{i}\n" for i in range(1200))
    session = Session()
    session.ask("1 in")
    session.end("\x04")
    with open(history) as file:
        kept = file.read().splitlines()[1:]  # behind the line that names the format
    expect("the history", (len(kept), kept[0], kept[-1]), (1000, "201", "1\\040in"))

    session = Session(folder="/dev/null")  # where nothing can be written
    expect("without a history", session.ask("1 in"), called("1 in"))
    expect("without a history, Ctrl-D", session.end("\x04"), 0)

# Where the output is no terminal, there is no prompt.
terminal = pty.openpty()[1]
run = subprocess.run([program], stdin=terminal, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                     text=True)
expect("no terminal", (run.returncode, run.stdout), (2, ""))
expect("no terminal", "no quantity" in run.stderr, True)

print("\n".join(faults))
sys.exit(1 if faults else 0)
