#!/usr/bin/env python3
"""Fails when an #include in ox/ runs up the floors of the library.

usage: check_arrows.py OX_FOLDER | --self-test
"""

import pathlib
import re
import sys

# What the files of each area may include, beside their own area.
FLOORS = {
    "internal": {"core", "vectors"},
    "core": {"functions", "vectors"},
    "geometry": {"core", "functions", "vectors"},
    "polygon": {"core", "geometry", "functions", "vectors"},
    "solid": {"core", "geometry", "polygon", "mesh", "progress", "functions", "vectors"},
    "mesh": {"core", "geometry", "functions", "vectors"},
    "structure": {"core", "geometry", "functions", "vectors"},
    "progress": {"core", "geometry", "functions", "vectors"},
    "io": {"core", "geometry", "progress", "functions", "vectors"},
    "display": {"core", "geometry", "functions", "vectors"},
    "functions": {"core", "geometry", "vectors"},
}
# The plain vector types are the one piece of geometry that core knows.
VECTORS = {"ox/geometry/ox_2dvector.h", "ox/geometry/ox_3dvector.h"}
# Private helpers of several areas, in ox/internal/, which stand on the headers of core.
SHARED = "internal"
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"](ox/[^>"]+)[>"]', re.MULTILINE)


def area_of(path):
    if path in VECTORS:
        return "vectors"
    if path == "ox/ox_functions.h":
        return "functions"
    parts = path.split("/")
    return parts[1] if len(parts) > 2 else "umbrella"


def faults_of(path, text):
    """The includes of one file (a path from the folder above ox/) that run the wrong way."""
    area = area_of(path)
    if area == "umbrella":
        return
    # The vectors are files of geometry too, and must stay as low as core.
    allowed = {"vectors", "core"} if area == "vectors" else FLOORS[area] | {area}
    for target in INCLUDE.findall(text):
        target_area = area_of(target)
        if target_area == SHARED and area not in ("vectors", "functions"):
            if path.endswith(".h") and "/internal/" not in path:
                yield f"{path} is public and must not include the private {target}"
            continue
        if target_area not in allowed:
            yield f"{path} must not include {target}"
        if "/internal/" in target and target_area == area and path.endswith(".h"):
            if "/internal/" not in path:
                yield f"{path} is public and must not include the private {target}"
        if "/internal/" in target and target_area != area:
            yield f"{path} must not include {target}, which is private to {target_area}"


def self_test():
    up = list(faults_of("ox/polygon/cutting.cpp", "#include <ox/solid/ox_solid.h>\n"))
    private = list(faults_of("ox/solid/faces.cpp", "#include <ox/polygon/internal/a.h>\n"))
    public = list(faults_of("ox/solid/ox_solid.h", "#include <ox/internal/a.h>\n"))
    down = list(faults_of("ox/solid/faces.cpp", "#include <ox/polygon/ox_polygon.h>\n"))
    shared = list(faults_of("ox/solid/faces.cpp", "#include <ox/internal/a.h>\n"))
    return 0 if up and private and public and not down and not shared else 1


def main():
    if sys.argv[1] == "--self-test":
        return self_test()
    root = pathlib.Path(sys.argv[1])
    files = [f for f in sorted(root.rglob("*")) if f.suffix in (".h", ".cpp")]
    faults = [
        fault
        for f in files
        for fault in faults_of(f"ox/{f.relative_to(root).as_posix()}", f.read_text())
    ]
    print("\n".join(faults) or f"{len(files)} files, every arrow runs down")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
