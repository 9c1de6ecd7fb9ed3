#!/usr/bin/env python3
"""Fails when programs built with the library as it was can no longer run with the library as it is.

usage: check_abi.py [--write] DUMP LIBRARY

DUMP tells what programs know of the library of this major version; with --write it is made anew, which
only a new major version does. LIBRARY has debug information.
"""

import shutil
import subprocess
import sys

INCOMPATIBLE = 8 | 1 | 2  # bits of abidiff's exit status: programs break, or it could not compare
VIEW = ["--drop-private-types", "--exported-interfaces-only"]


def main():
    *write, dump, library = sys.argv[1:]
    if shutil.which("abidiff") is None:
        print("skipped: abidiff is missing (Debian: abigail-tools)")
        return
    if write:
        subprocess.run(["abidw", *VIEW, "--no-corpus-path", "--no-comp-dir-path", "--no-show-locs",
                        "--out-file", dump, library], check=True)
        return
    done = subprocess.run(["abidiff", "--exported-interfaces-only", "--no-added-syms", dump, library],
                          capture_output=True, text=True)
    if done.returncode & INCOMPATIBLE:
        raise SystemExit(f"programs would break:\n{done.stdout}{done.stderr}")


if __name__ == "__main__":
    main()
