#!/ usr / bin / env python3
"""Fails when a function that the library exports is called by no source of the misuse tests that names
its class.

usage: check_misuse.py EXPORTED_SYMBOLS FOLDER | --self-test
"""

import pathlib
import re
import sys

#Exported because their class is; nobody outside can call them.
PRIVATE = {
    "ox_bspline": {"count_weights"},
    "ox_camera": {"_compute", "move_by", "turned"},
    "ox_csg": {"get_state"},
    "ox_cubic_spline": {"compute_interval_coefficients", "log_tables"},
    "ox_snap": {"is_within_reach", "snap_to_line", "snap_to_plane", "snap_to_point"},
    "ox_solid": {"get_state"},
    "ox_thread": {"report", "run_alone", "run_in_team", "work"},
    "ox_triangle_set": {"allocate_uninitialised", "has_valid_triangles", "read_raw_arrays",
                        "read_stl_records", "replace_vertices"},
}

#Without arguments, and a second long.
LEFT_OUT = {"ox_hash_performance_test"}


def exported_functions(symbols):
    """(class or None, function) of every exported function that can be called by name."""
    found = set()
    for line in symbols.splitlines():
        line = re.sub(r"\[abi:\w+\]", "", line)
        match = re.match(r"(?:ox::)?(?:(\w+)::)?(~?\w+|operator[^\w(]+)(\(|$)", line)
        if match and not line.startswith("#") and not re.match(r"(vtable|typeinfo) ", line):
            found.add((match[1], match[2]))
    return {(owner, name) for owner, name in found
            if not name.startswith("~") and name not in PRIVATE.get(owner, ())
            and name not in LEFT_OUT
}

def is_called(owner, name, source):
    if owner and not re.search(rf"\b{owner}\b", source):
        return False
    if name.startswith("operator"):
        return f" {name.removeprefix('operator')} " in source
    if name == owner:
        return bool(re.search(rf"\b{owner}\b( \w+)?[;({{]", source))
    return bool(re.search(rf"\b{name}\b", source))


def main():
    if sys.argv[1] == "--self-test":
        symbols = "ox::ox_a::f(int)\nox::ox_a::~ox_a()\nox::ox_g[abi:cxx11](int)\nvtable for ox::ox_a\n"
        assert exported_functions(symbols) == {("ox_a", "f"), (None, "ox_g")}
        assert is_called("ox_a", "f", "ox_a a; a.f(-1);")
        assert not is_called("ox_a", "f", "ox_b b; b.f(-1);")
        assert not is_called("ox_a", "f", "ox_a a; a.f_of(-1);")
        return 0
    functions = exported_functions(pathlib.Path(sys.argv[1]).read_text())
    sources = [path.read_text() for path in pathlib.Path(sys.argv[2]).glob("*.cpp")]
    missing = sorted(f"{owner or ''}::{name}" for owner, name in functions
                     if not any(is_called(owner, name, source) for source in sources))
    print("\n".join(f"never misused: {name}" for name in missing)
          or f"{len(functions)} exported functions, every one of them misused")
    return 1 if missing or not functions else 0


if __name__ == "__main__":
    sys.exit(main())
