#!/usr/bin/env python3
"""Lets the compiler of a build folder read every file for its warnings, without making code.

usage: check_warnings.py BUILD_FOLDER JOBS
"""

import concurrent.futures
import json
import pathlib
import shlex
import subprocess
import sys


def reading_of(entry):
    """The command of one file, without its output and without precompiled headers."""
    words = iter(shlex.split(entry["command"]))
    kept = []
    for word in words:
        if word in ("-o", "-c"):
            next(words)
        elif word == "-Xclang":
            next(words)
        elif word == "-include-pch" or word.endswith(("cmake_pch.hxx", "cmake_pch.hxx.pch")):
            continue
        elif word != "-Winvalid-pch":
            kept.append(word)
    return kept + ["-fsyntax-only", entry["file"]]


def read(entry):
    ended = subprocess.run(reading_of(entry), cwd=entry["directory"], capture_output=True, text=True,
                           check=False)
    return ended.stderr if ended.returncode else ""


def main():
    folder, jobs = sys.argv[1:]
    entries = json.loads((pathlib.Path(folder) / "compile_commands.json").read_text())
    files = {e["file"]: e for e in entries if "cmake_pch" not in e["file"]}
    with concurrent.futures.ThreadPoolExecutor(int(jobs)) as pool:
        faults = [fault for fault in pool.map(read, files.values()) if fault]
    print("".join(faults) or f"{len(files)} files without a warning")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
