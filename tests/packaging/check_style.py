#!/usr/bin/env python3
"""Fails on functions of the library that do not fit on a screen, files too long to read in one
sitting, and names and words that the project has given up.

usage: check_style.py PROJECT_FOLDER | --self-test
"""

import pathlib
import re
import sys

LONGEST_FUNCTION = 34
LONGEST_FILE = 400
SOURCES = {".h", ".cpp", ".c"}

# What is not written in the library, and what is written instead.
FORBIDDEN = {
    r"\b(TODO|FIXME|XXX)\b": "unfinished work is not left in comments",
    r"\bMB_PRECOMPOSED\b": "a code page that is UTF-8 takes no flags",
    r"#include <(GL|OpenGL)/": "Windows needs more before it: include ox/internal/opengl_headers.h",
}
OPENGL_HEADERS = "opengl_headers.h"

# What ends like the head of a function: a body follows, and it is no type, namespace or table.
NO_FUNCTION = re.compile(r"^\s*(namespace|class|struct|union|enum|extern)\b|=\s*\{$|^\s*\{$")


def without_strings(line):
    return re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', '""', line).split("//")[0]


def functions_of(lines):
    """First line and length of every function. Formatted sources close a body on a line of its own,
    indented less than what is inside."""
    for start, line in enumerate(lines):
        code = without_strings(line).rstrip()
        if not code.endswith("{") or NO_FUNCTION.search(code) or ")" not in code:
            continue
        if re.match(r"\s*(\}?\s*(else|if|for|while|switch|do|catch|try)\b)", code):
            continue
        head = start
        while head > 0 and without_strings(lines[head]).count(")") > without_strings(
                lines[head]).count("(") and lines[head - 1].strip():
            head -= 1
        inside = len(re.match(r" *", lines[min(start + 1, len(lines) - 1)]).group())
        for end in range(start + 1, len(lines)):
            if re.match(r" {0,%d}\}" % max(inside - 1, 0), lines[end]):
                yield head + 1, end - head + 1
                break


def faults_of(path, text):
    lines = text.splitlines()
    if len(lines) > LONGEST_FILE:
        yield f"{path}: {len(lines)} lines are too many to read in one sitting"
    for line, length in functions_of(lines):
        if length > LONGEST_FUNCTION:
            yield f"{path}:{line}: a function of {length} lines"
    for number, line in enumerate(lines, 1):
        for pattern, reason in FORBIDDEN.items():
            if re.search(pattern, line) and pathlib.Path(path).name != OPENGL_HEADERS:
                yield f"{path}:{number}: {reason}"


def self_test():
    body = "    work();\n"
    long = "void f(int a,\n       int b) {\n" + body * 32 + "}\n"
    short = "void f(int a,\n       int b) {\n" + body * 31 + "}\n"
    table = "const int t[] = {\n" + "    1,\n" * 50 + "};\n"
    found = [list(faults_of("ox/a.cpp", text))
             for text in (long, "// TODO\n", "#include <GL/gl.h>\n", "MB_PRECOMPOSED\n",
                          "work();\n" * 401)]
    sound = [list(faults_of("ox/a.cpp", text)) for text in (short, table, "float x = 0.0f;\n")]
    return 0 if all(len(f) == 1 for f in found) and not any(sound) else 1


def main():
    if sys.argv[1] == "--self-test":
        return self_test()
    root = pathlib.Path(sys.argv[1])
    files = [f for f in sorted((root / "ox").rglob("*")) if f.suffix in SOURCES]
    faults = [fault for f in files
              for fault in faults_of(f.relative_to(root).as_posix(), f.read_text())]
    print("\n".join(faults) or f"{len(files)} files in good style")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
