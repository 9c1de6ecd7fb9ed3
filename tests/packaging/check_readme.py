#!/usr/bin/env python3
"""Fails when the README shows another program than the one that is compiled, leaves out a
public header, or when a page links to a file that does not exist.

usage: check_readme.py PROJECT_FOLDER PUBLIC_HEADER...
"""

import pathlib
import re
import sys


def faults_of(root, headers):
    readme = (root / "README.md").read_text()
    program = (root / "examples/readme/cut_window.cpp").read_text()
    if program not in readme:
        yield "the program in the README differs from examples/readme/cut_window.cpp"
    for header in headers:
        if pathlib.Path(header).name not in readme and not header.endswith("ox_export.h"):
            yield f"the README does not list {header}"
    for page in [*root.glob("*.md"), *root.glob("docs/**/*.md"), *root.glob("examples/**/*.md")]:
        text = re.sub(r"^```.*?^```", "", page.read_text(), flags=re.M | re.S)
        for target in re.findall(r"\]\((?!https?:)([^)#]+)\)", text):
            if not (page.parent / target).exists():
                yield f"{page.relative_to(root)} links to {target}, which does not exist"


if __name__ == "__main__":
    faults = list(faults_of(pathlib.Path(sys.argv[1]), sys.argv[2:]))
    print("\n".join(faults) or "the README is up to date")
    sys.exit(1 if faults else 0)
