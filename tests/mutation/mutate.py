#!/usr/bin/env python3
"""Changes one place of the library at a time and tells which changes the tests of its area notice.

usage: mutate.py PROJECT_FOLDER WORK_FOLDER [--count N] [--seed S] [--area AREA ...] [--again FILE]
       mutate.py --self-test

A change is a mutant: a comparison, a sign, a connective or a constant becomes another one. Mutants are
drawn at random from the sources below ox/, and made in a copy of the project in WORK_FOLDER. A mutant
is killed when a test of its area fails, crashes or takes too long; one that is no program is not
counted. Every one is printed with its place, at the end the number of the killed. With --again the
mutants that a former run printed to FILE as survivors are tried once more.
"""

import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys

# What is tested with which programs, by the beginning of the path below ox/; the first that fits.
PROGRAMS = [
    ("solid/internal/csg", ["csg_stages", "csg_exact", "csg"]),
    ("solid/ox_csg", ["csg_stages", "csg"]),
    ("solid", ["solid"]),
    ("polygon", ["polygon", "solid"]),
    ("internal", ["polygon", "solid", "mesh"]),
    ("core", ["core"]),
    ("display", ["display"]),
    ("geometry", ["geometry"]),
    ("io", ["io"]),
    ("mesh", ["mesh"]),
    ("progress", ["progress"]),
    ("structure", ["structure"]),
]

# A pattern, and what takes its place.
CHANGES = [
    (r" < ", [" <= ", " > "]),
    (r" <= ", [" < "]),
    (r" > ", [" >= ", " < "]),
    (r" >= ", [" > "]),
    (r" == ", [" != "]),
    (r" != ", [" == "]),
    (r" && ", [" || "]),
    (r" \|\| ", [" && "]),
    (r" \+ ", [" - "]),
    (r" - ", [" + "]),
    (r" \+= ", [" -= "]),
    (r" -= ", [" += "]),
    (r"(?<![\w.])0(?![\w.])", ["1"]),
    (r"(?<![\w.])1(?![\w.])", ["2", "0"]),
    (r"(?<![\w.])2(?![\w.])", ["3"]),
    (r"(?<![\w.])0\.0f?(?![\w])", ["0.01f"]),
    (r"(?<![\w.])0\.5f?(?![\w])", ["0.6f"]),
    (r"(?<![\w.])1\.0f?(?![\w])", ["1.1f"]),
    (r"\btrue\b", ["false"]),
    (r"\bfalse\b", ["true"]),
]

NO_CODE = re.compile(r"^\s*(//|#|\*|template|static_assert|using|case .*:$)|operator|ox_log|OX_")
BUILD_SECONDS = 600
TEST_SECONDS = 240


def without_texts(line):
    """The line with its strings and comment blanked, of the same length."""
    blank = re.sub(r'"(\\.|[^"\\])*"', lambda m: '"' + "_" * (len(m[0]) - 2) + '"', line)
    return re.sub(r"//.*", lambda m: "_" * len(m[0]), blank)


def mutants_of(text):
    """All changes of a source: the line's number, its columns and the new text."""
    for number, line in enumerate(text.splitlines(), 1):
        if NO_CODE.search(line):
            continue
        code = without_texts(line)
        for pattern, replacements in CHANGES:
            for match in re.finditer(pattern, code):
                for replacement in replacements:
                    yield number, match.start(), match.end(), replacement


def changed(text, mutant):
    number, start, end, replacement = mutant
    lines = text.splitlines(keepends=True)
    line = lines[number - 1]
    lines[number - 1] = line[:start] + replacement + line[end:]
    return "".join(lines), line.strip(), lines[number - 1].strip()


def programs_of(path, areas):
    for beginning, programs in PROGRAMS:
        if path.startswith(beginning) and (not areas or beginning.split("/")[0] in areas):
            return programs
    return []


def draw(root, areas, seed):
    """Mutants in random order, a file as likely as its share of all places."""
    found = []
    for source in sorted((root / "ox").rglob("*.cpp")):
        path = source.relative_to(root / "ox").as_posix()
        if programs_of(path, areas):
            found += [(path, mutant) for mutant in mutants_of(source.read_text())]
    random.Random(seed).shuffle(found)
    return found


def survivors_of(log, root):
    """The mutants that a former run printed as survivors."""
    printed = re.findall(r"^survived +ox/(\S+):(\d+):(\d+): .*? => (.*)$", log, re.M)
    for path, number, column, new_line in printed:
        text = (root / "ox" / path).read_text()
        for mutant in mutants_of(text):
            if mutant[0] == int(number) and mutant[1] == int(column) and \
                    changed(text, mutant)[2] == new_line:
                yield path, mutant


class Laboratory:
    """The copy of the project that the mutants live in."""

    def __init__(self, project, folder):
        self.tree = folder
        self.build = folder / "build" / "release"
        for part in ["ox", "tests", "cmake", "fuzz", "bench", "examples", "docs", "packaging",
                     "CMakeLists.txt", "CMakePresets.json", "LICENSE", "README.md"]:
            self.copy(project / part, self.tree / part)
        subprocess.run(["cmake", "--preset", "release", "-Wno-dev",
                        "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON"],
                       check=True, cwd=self.tree, stdout=subprocess.DEVNULL)

    @staticmethod
    def copy(source, target):
        """Files that are the same keep their time, so that nothing is built anew for them."""
        files = [source] if source.is_file() else [f for f in source.rglob("*") if f.is_file()]
        for file in files:
            to = target if source.is_file() else target / file.relative_to(source)
            if not to.exists() or to.read_bytes() != file.read_bytes():
                to.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(file, to)

    def compile(self, programs):
        targets = [f"ox_{program}_tests" for program in programs]
        try:
            return subprocess.run(["ninja", "-C", self.build, "-j2", *targets], timeout=BUILD_SECONDS,
                                  stdout=subprocess.DEVNULL).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def passes(self, program):
        """True if all tests of the program do."""
        binary = next(self.build.rglob(f"ox_{program}_tests"))
        command = [binary, "--gtest_fail_fast", "--gtest_brief=1",
                   "--gtest_filter=-*Thorough*:*FailedAllocation*:*FailingAllocation*"]
        folder = self.build / "run"
        folder.mkdir(exist_ok=True)
        try:
            return subprocess.run(command, cwd=folder, timeout=TEST_SECONDS,
                                  stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def judge(self, path, text, programs):
        """'killed', 'survived', or None for what is no program."""
        source = self.tree / "ox" / path
        original = source.read_text()
        source.write_text(text)
        try:
            if not self.compile(programs):
                return None
            return "survived" if all(map(self.passes, programs)) else "killed"
        finally:
            source.write_text(original)


def run(wanted):
    project = pathlib.Path(wanted.project).resolve()
    laboratory = Laboratory(project, pathlib.Path(wanted.work).resolve())
    if wanted.again:
        mutants = list(survivors_of(pathlib.Path(wanted.again).read_text(), project))
    else:
        mutants = draw(project, wanted.area, wanted.seed)
    counts = {"killed": 0, "survived": 0}
    for path, mutant in mutants:
        if sum(counts.values()) == wanted.count:
            break
        text, old, new = changed((project / "ox" / path).read_text(), mutant)
        verdict = laboratory.judge(path, text, programs_of(path, []))
        if verdict:
            counts[verdict] += 1
            print(f"{verdict:9}ox/{path}:{mutant[0]}:{mutant[1]}: {old} => {new}", flush=True)
    total = sum(counts.values())
    print(f"{counts['killed']} of {total} mutants killed"
          f" ({100.0 * counts['killed'] / max(total, 1):.0f} %)")
    return 0


def self_test():
    text = 'int f(int a) {\n    return a < 1 ? 0 : a; // 1 < 2\n}\n#if 1 < 2\nlog("a < b");\n'
    found = list(mutants_of(text))
    places = {(m[0], changed(text, m)[2]) for m in found}
    sound = {(2, "return a <= 1 ? 0 : a; // 1 < 2"), (2, "return a > 1 ? 0 : a; // 1 < 2"),
             (2, "return a < 2 ? 0 : a; // 1 < 2"), (2, "return a < 0 ? 0 : a; // 1 < 2"),
             (2, "return a < 1 ? 1 : a; // 1 < 2")}
    return 0 if places == sound else 1


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("project")
    parser.add_argument("work")
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--area", action="append", default=[])
    parser.add_argument("--again")
    return run(parser.parse_args())


if __name__ == "__main__":
    sys.exit(main())
