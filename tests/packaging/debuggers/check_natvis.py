#!/usr/bin/env python3
"""Compares the types and members that the Natvis file and the GDB printers name with the sources.

usage: check_natvis.py PROJECT
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"


def main():
    project = pathlib.Path(sys.argv[1])
    natvis = xml.etree.ElementTree.parse(project / "packaging/debuggers/ox_utilities.natvis")
    printers = (project / "packaging/debuggers/ox_utilities-gdb.py").read_text()
    sources = "".join(path.read_text() for path in sorted((project / "ox").rglob("*.h")))

    shown = {kind.get("Name") for kind in natvis.iter(NAMESPACE + "Type")}
    printed = set(re.findall(r'"(ox_\w+)(?:<\.\*>)?", \w+Printer', printers))
    for name in sorted(shown):
        plain = re.sub(r"^ox::|<\*>$", "", name)
        if not re.search(r"\b(class|struct) (OX_EXPORT )?" + plain + r" .*\{", sources):
            raise SystemExit(f"the library has no {name}")
    missing = {name for name in printed if not any(name in kind for kind in shown)}
    if missing:
        raise SystemExit(f"GDB prints {sorted(missing)}, but Natvis does not")
    members = {word for element in natvis.iter() if element.tag != NAMESPACE + "Type"
               for word in re.findall(r"\b[a-z]\w*_\w+", element.text or "")}
    for member in sorted(members - {"ox_csg_state"}):
        if not re.search(r"\b" + member + r"\b", sources):
            raise SystemExit(f"the library has no member {member}")


if __name__ == "__main__":
    main()
