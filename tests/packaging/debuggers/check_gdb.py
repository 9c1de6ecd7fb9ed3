#!/usr/bin/env python3
"""Stops a program in the middle of a boolean and prints its objects with GDB in batch mode.

usage: check_gdb.py GDB PRINTERS PROGRAM SOURCE LIBRARY (shown | hidden)

The program runs with the library as it is, or, where it is to be hidden, with one stripped of its
debug information.
"""

import pathlib
import subprocess
import sys
import tempfile

VALUES = {
    "numbers": "list of 3 = {2, 3, 5}",
    "no_numbers": "list of 0",
    "weights": "map of 2 = {[1] = 0.25, [2] = 0.5}",
    "pixel": "(3, 4.5)",
    "place": "radius 1, latitude 0.5, longitude 0.25",
    "box": "box from (1, 2, 3) to (2, 4, 6)",
    "nothing": "empty box",
    "brick_red": "rgba (0.5, 0.25, 0.125, 1)",
    "moved": "[1 0 0 7; 0 1 0 8; 0 0 1 9; 0 0 0 1]",
}

RECORDS = {
    "triangles": "1 triangle of 3 vertices = {vertices[0] = (",
    "table": "table of 2 columns = {",
    "room": "solid of 6 faces, 0 holes, 24 vertices = {vertices = list of 24 = {(0, 0, 2.5), (",
    "window": "solid of 6 faces, 0 holes, 24 vertices = {",
    "floor": "polygon of 1 contour, 3 vertices = {point = (0, 0, 0), normal = (0, 0, 1), ",
    "combination": "combination of 2 operands, not evaluated = {",
}

HIDDEN = {
    name: f"{kind} hidden: the library was stripped of its debug information"
    for name, kind in [("table", "table"), ("room", "solid"), ("window", "solid"),
                       ("floor", "polygon"), ("combination", "combination"),
                       ("triangles", "triangle set")]
}


def line_of_the_boolean(source):
    with open(source, encoding="utf-8") as lines:
        return next(n for n, line in enumerate(lines, 1) if "room.substracts(window)" in line)


def run(gdb, printers, program, source, folder, names):
    """What GDB prints of each name in the frame of main, stopped where faces are clipped."""
    commands = [f"source {printers}", "set pagination off", "set print elements 8",
                f"set environment LD_LIBRARY_PATH {folder}",
                f"break {source}:{line_of_the_boolean(source)}", "run",
                "break ClipperLib::Clipper::Execute", "continue", "backtrace",
                "frame function main"]
    for name in names:
        commands += [f"echo \\n@{name}\\n", f"print {name}"]
    arguments = [argument for command in commands for argument in ("-ex", command)]
    return subprocess.run([gdb, "-nx", "-batch", *arguments, program], capture_output=True,
                          text=True, timeout=300)


def library_folder(library, records, scratch):
    """The folder of the library as it is, or of a stripped copy."""
    if records == "shown":
        return pathlib.Path(library).parent
    name = pathlib.Path(library).name
    subprocess.run(["objcopy", "--strip-debug", library, scratch / name], check=True)
    return scratch


def main():
    gdb, printers, program, source, library, records = sys.argv[1:]
    expected = VALUES | (RECORDS if records == "shown" else HIDDEN)
    with tempfile.TemporaryDirectory() as scratch:
        folder = library_folder(library, records, pathlib.Path(scratch))
        done = run(gdb, printers, program, source, folder, expected)
    if "in ox::ox_solid::substracts" not in done.stdout:
        raise SystemExit(f"not stopped in a boolean:\n{done.stdout}\n{done.stderr}")
    wrong = []
    for name, wanted in expected.items():
        printed = done.stdout.split(f"\n@{name}\n", 1)[-1].split("\n@", 1)[0]
        if not printed.split(" = ", 1)[-1].startswith(wanted):
            wrong.append(f"{name}: {printed.strip()}\n  instead of {wanted}")
    if wrong or "Python Exception" in done.stderr:
        raise SystemExit("\n".join(wrong) + "\n" + done.stderr)


if __name__ == "__main__":
    main()
