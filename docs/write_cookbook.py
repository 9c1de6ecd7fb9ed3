#!/usr/bin/env python3
"""Writes docs/manual/cookbook.md: every recipe of examples/cookbook with what it prints. With --check it
writes nothing and fails where the page is out of date.

usage: write_cookbook.py [--check] PROJECT_FOLDER
"""

import pathlib
import sys

HEAD = """# Cookbook

Written by `docs/write_cookbook.py` from `examples/cookbook`. Each recipe is a program of its own that the
tests compile and run, and that prints what stands below it.
"""

# What belongs together, in the order of the page.
CHAPTERS = {
    "Plans": ["room_label", "offset_outline", "holes_and_islands", "scatter_points", "sections_to_svg"],
    "Solids": ["wall_openings", "roof_clip", "measure_solid", "shadow_outline", "faces_import",
               "pick_face", "far_from_origin"],
    "Meshes": ["indexed_mesh", "weld_and_check", "mesh_files"],
    "Everything else": ["slab_load", "curves", "quantity_table", "all_cores", "lambert93",
                        "debug_shapes"],
}


def page_of(root):
    sources = {p.stem: p.read_text() for p in (root / "examples/cookbook").glob("*.cpp")}
    listed = sum(CHAPTERS.values(), [])
    if sorted(listed) != sorted(sources):
        raise SystemExit(f"in no chapter, or without a file: {set(listed) ^ set(sources)}")
    title = {name: text.splitlines()[0].removeprefix("// ") for name, text in sources.items()}
    parts = [HEAD]
    for chapter, names in CHAPTERS.items():
        parts.append(f"| {chapter} | |\n|---|---|")
        parts.extend(f"| `{name}` | {title[name]} |" for name in names)
        parts.append("")
    for chapter, names in CHAPTERS.items():
        parts.append(f"## {chapter}\n")
        for name in names:
            body = "\n".join(sources[name].splitlines()[1:])
            printed = (root / f"tests/examples/cookbook/{name}.txt").read_text()
            parts.append(f"### {name}\n\n{title[name]}\n\n```cpp\n{body}\n```\n\n```text\n{printed}```\n")
    return "\n".join(parts)


def main():
    root = pathlib.Path(sys.argv[-1])
    path = root / "docs/manual/cookbook.md"
    page = page_of(root)
    if "--check" not in sys.argv:
        path.write_text(page)
    elif path.read_text() != page:
        raise SystemExit("docs/manual/cookbook.md is out of date: run docs/write_cookbook.py")


if __name__ == "__main__":
    main()
