#!/usr/bin/env python3
"""Gives every description of a table to a program, which must refuse it as `FILE:LINE: REASON`, with
the exit status 2, without other output and without an output folder.

usage: check_refusals.py TABLE FOLDER PROGRAM

An entry of the table is a line `=== NAME | LINE | REASON` with the text below it; an empty line ends
it. A fourth field `cut` takes the newline from the end of the text, `absent` keeps the file away.
"""

import pathlib
import shutil
import subprocess
import sys


def entries_of(table):
    """Names, lines, reasons and texts; a text is None where there shall be no file."""
    for entry in f"\n{table}=== ".split("\n=== ")[1:-1]:
        head, _, text = entry.partition("\n")
        name, line, reason, *flags = head.split(" | ")
        if "cut" in flags:
            text = text[:-1]
        yield name, line, reason, None if "absent" in flags else text


def faults_of(program, folder, name, line, reason, text):
    description = folder / f"{name}.txt"
    output = folder / f"{name}-output"
    if text is not None:
        description.write_text(text)
    ended = subprocess.run(
        [program, str(description), "--out", str(output)],
        capture_output=True, text=True, timeout=60, check=False)
    expected = f"{description}:{line}: {reason}\n"
    if ended.returncode != 2:
        yield f"{name}: exit status {ended.returncode} instead of 2"
    if ended.stderr != expected:
        yield f"{name}: told as\n{ended.stderr}instead of\n{expected}"
    if ended.stdout or output.exists():
        yield f"{name}: a refused description left output\n{ended.stdout}"


def main():
    table, folder, program = sys.argv[1:]
    folder = pathlib.Path(folder)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    entries = list(entries_of(pathlib.Path(table).read_text()))
    faults = [fault for e in entries for fault in faults_of(program, folder, *e)]
    print("\n".join(faults) or f"{len(entries)} descriptions were refused")
    return 1 if faults or not entries else 0


if __name__ == "__main__":
    sys.exit(main())
