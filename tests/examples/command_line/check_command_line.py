#!/usr/bin/env python3
"""Meets an example program as its users do at the prompt.

usage: check_command_line.py CHECK PROGRAM FOLDER [ARGUMENT...]

FOLDER is the check's own, for what the program writes; the arguments are a command line that succeeds.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

FAILED = 1
REFUSED = 2


def expect(condition, *facts):
    if not condition:
        raise SystemExit("not as expected: " + " ".join(str(fact) for fact in facts))


def run(program, *arguments, **options):
    options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "text": True} | options
    return subprocess.run([program, *map(str, arguments)], **options)


def expect_refusal(done, reason):
    """The reason is one line, and the way to help at most another."""
    expect(done.returncode == REFUSED and not done.stdout, done)
    expect(reason in done.stderr and done.stderr.count("\n") <= 2, done)


def help_and_version_succeed(program, folder, *arguments):
    name = pathlib.Path(program).stem
    for option in ("--help", "-h"):
        done = run(program, option)
        expect(done.returncode == 0 and not done.stderr, done)
        expect(f"Usage: {name} " in done.stdout and "--version" in done.stdout, done.stdout)
    done = run(program, "--version")
    expect(done.returncode == 0 and not done.stderr, done)
    expect(re.fullmatch(name + r" \d+\.\d+\.\d+\n", done.stdout), done.stdout)


def what_makes_no_sense_is_refused(program, folder, *arguments):
    expect(run(program).returncode == REFUSED, "without any word")
    expect_refusal(run(program, *arguments, "--fast"), "--fast")
    expect_refusal(run(program, *arguments, "a", "b", "c"), "not expected")
    expect(not folder.exists(), "a refused command line left files")


def a_folder_is_not_a_missing_file(program, folder, *arguments):
    """The first argument is the file to read."""
    expect_refusal_of_file(run(program, "/", *arguments[1:]), "/", "this is a folder")
    expect_refusal_of_file(run(program, "/dev/null", *arguments[1:]), "/dev/null", "no plain file")
    missing = str(folder / "missing")
    expect_refusal_of_file(run(program, missing, *arguments[1:]), missing, "no such file")


def expect_refusal_of_file(done, path, reason):
    expect(done.returncode == REFUSED and not done.stdout, done)
    last = done.stderr.splitlines()[-1]
    expect(last.startswith(path + ":") and reason in last, done)


def a_full_device_fails(program, folder, *arguments):
    with open("/dev/full", "w") as full:
        for words in (["--help"], arguments):
            done = run(program, *words, stdout=full)
            expect(done.returncode == FAILED, done)
            expect("standard output cannot be written: No space left" in done.stderr, done)


def without_a_driver_only_pictures_are_missing(program, folder, *arguments):
    usual = run(program, *arguments)
    expect(usual.returncode == 0, usual)
    files = set(os.listdir(folder))
    pictures = {name for name in files if name.endswith(".png")}
    expect(pictures, files)
    shutil.rmtree(folder)
    blind = dict(os.environ, __EGL_VENDOR_LIBRARY_DIRS="/nonexistent")
    done = run(program, *arguments, env=blind)
    expect(done.returncode == FAILED and without_times(done.stdout) == without_times(usual.stdout),
           done)
    expect(re.search(r"no pictures: .*\(Debian: libgl1-mesa-dri\)\n", done.stderr), done.stderr)
    expect(done.stderr.count("no pictures") == 1, done.stderr)
    expect(set(os.listdir(folder)) == files - pictures, os.listdir(folder))


def without_times(table):
    """The last column of a table of measures tells seconds."""
    return re.sub(r" +\d+\.\d{3}$", "", table, flags=re.MULTILINE)


def names_and_paths_may_be_utf8(program, folder, *arguments):
    """The first argument is a description; its name, the first one, becomes another."""
    text = pathlib.Path(arguments[0]).read_text()
    keyword, name = re.search(r"^(\w+) +(\w+)", text, re.MULTILINE).groups()
    folder.mkdir(parents=True)
    description = folder / "Straße 東.txt"
    description.write_text(
        "\ufeff" + text.replace(f"{keyword} {name}", f"{keyword} Überbau-北", 1), encoding="utf-8")
    done = run(program, description, "--out", folder / "höhe")
    expect(done.returncode == 0, done)
    expect("Überbau-北.png" in os.listdir(folder / "höhe"), os.listdir(folder / "höhe"))


def main():
    check, program, folder, *arguments = sys.argv[1:]
    folder = pathlib.Path(folder)
    shutil.rmtree(folder, ignore_errors=True)
    globals()[check](program, folder, *arguments)


if __name__ == "__main__":
    main()
