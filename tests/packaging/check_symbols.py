#!/usr/bin/env python3
"""Fails when the shared library exports something else than the list beside this script says.

usage: check_symbols.py [--write] LIST LIBRARY
"""

import pathlib
import re
import subprocess
import sys

PUBLIC = re.compile(r"(vtable for |typeinfo for |typeinfo name for )?ox::|ox_log")
HEADER = """\
# What libox_utilities.so exports, sorted. `./run symbols` writes it anew: look at the difference, what
# vanishes breaks programs (see CONTRIBUTING.md, Versions).
"""


def exported_by(library):
    printed = subprocess.run(["nm", "-DC", "--defined-only", library], capture_output=True, text=True,
                             check=True).stdout
    return sorted({line.split(" ", 2)[2] for line in printed.splitlines()})


def faults_of(listed, exported):
    for name in sorted(set(exported) - set(listed)):
        yield f"exported, but not listed: {name}"
    for name in sorted(set(listed) - set(exported)):
        yield f"listed, but not exported: {name}"
    for name in exported:
        if not PUBLIC.match(name) or name.startswith("ox::internal::"):
            yield f"exported, but private: {name}"


def main():
    *write, path, library = sys.argv[1:]
    path = pathlib.Path(path)
    exported = exported_by(library)
    if write:
        path.write_text(HEADER + "\n".join(exported) + "\n")
    listed = [line for line in path.read_text().splitlines() if not line.startswith("#")]
    faults = list(faults_of(listed, exported))
    print("\n".join(faults) or f"{len(exported)} symbols, all of them listed")
    return 1 if faults or not exported else 0


if __name__ == "__main__":
    sys.exit(main())
