#!/usr/bin/env python3
"""The recipes of the package managers have the project's version and take along what is needed.

usage: check_recipes.py PROJECT VERSION
"""

import ast
import json
import pathlib
import sys


def expect(condition, fact):
    if not condition:
        raise SystemExit(fact)


def members_of(recipe):
    """The plain values that the class of a Conan recipe sets."""
    cls = next(node for node in ast.parse(recipe).body if isinstance(node, ast.ClassDef))
    return {node.targets[0].id: ast.literal_eval(node.value)
            for node in cls.body if isinstance(node, ast.Assign)}


def main():
    project, version = pathlib.Path(sys.argv[1]), sys.argv[2]
    port = json.loads((project / "packaging/vcpkg/ox-utilities/vcpkg.json").read_text())
    expect(port["version"] == version, f"the vcpkg port has version {port['version']}")

    recipe = (project / "packaging/conan/conanfile.py").read_text()
    members = members_of(recipe)
    expect(members["version"] == version, f"the Conan recipe has version {members['version']}")
    expect(members["description"] == port["description"], "the descriptions differ")

    named = set(ast.literal_eval("[" + recipe.split("for pattern in (")[1].split("):")[0] + "]"))
    for pattern in named:
        expect(list(project.glob(pattern)), f"the Conan recipe names {pattern}, which is not there")


if __name__ == "__main__":
    main()
