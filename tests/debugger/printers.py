"""Run by gdb: prints the objects of the host, and compares with rows.txt."""

import os
import re

import gdb

STOP = "everythingIsThere"
LONGEST = 5000


def printed(expression):
    try:
        text = gdb.execute(f"print {expression}", to_string=True).strip()
    except gdb.error as fault:
        return f"error: {fault}"
    return text.split(" = ", 1)[-1]


def as_pattern(text):
    return ".*".join(re.escape(part) for part in text.split("*"))


def go_to(function):
    gdb.execute("continue" if gdb.selected_inferior().pid else "run", to_string=True)
    gdb.execute("up", to_string=True)
    name = gdb.selected_frame().name()
    if function not in name:
        raise gdb.GdbError(f"stopped in {name}, not in {function}")


def faults(path):
    """Of each row that prints something else, what; and how many rows there are."""
    found, count = [], 0
    with open(path, encoding="utf-8") as rows:
        for line in rows:
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            if line.startswith("! "):
                gdb.execute(line[2:])
            elif line.startswith("stop "):
                go_to(line[5:])
            else:
                count += 1
                expression, expected = line.split(" = ", 1)
                text = printed(expression)
                if len(text) > LONGEST or not re.fullmatch(as_pattern(expected), text):
                    found.append(f"{expression}\n    is       {text[:LONGEST]}\n    not      {expected}")
                elif "Traceback" in text or "Python Exception" in text:
                    found.append(f"{expression}\n    fails: {text}")
    return found, count


def main():
    # Set as the users of most terminals have it, whatever the locale of the test.
    for setting in (
        "confirm off",
        "pagination off",
        "host-charset UTF-8",
        "print elements 200",
        "print frame-info short-location",
    ):
        gdb.execute(f"set {setting}")
    gdb.execute(f"break {STOP}", to_string=True)
    found, count = faults(os.environ["ZARNEX_ROWS"])
    for fault in found:
        print(fault)
    print(f"{count} rows, {len(found)} of them wrong")
    gdb.execute(f"quit {1 if found or count == 0 else 0}")


try:
    main()
except Exception as fault:  # gdb would end with 0
    print(f"{type(fault).__name__}: {fault}")
    gdb.execute("quit 1")
