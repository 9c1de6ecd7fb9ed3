#!/usr/bin/env python3
"""Runs the progress example as its users do: twice, on terminals of two widths, and with Ctrl-C.

usage: check_progress.py PROGRESS_PROGRAM MESH_TOOL FOLDER
"""

import fcntl
import os
import pathlib
import pty
import re
import shutil
import signal
import struct
import subprocess
import sys
import termios

LEAVES = ["planning", "cutting", "triangles", "welding", "writing"]
PHASES = ["panels", "planning", "cutting", "mesh", "triangles", "welding", "writing"]
STOPPED = 130


def expect(condition, *facts):
    if not condition:
        raise SystemExit("not as expected: " + " ".join(str(fact) for fact in facts))


class Example:
    def __init__(self, program, mesh_tool, folder):
        self.program = program
        self.mesh_tool = mesh_tool
        self.folder = pathlib.Path(folder)

    def fresh(self, name):
        folder = self.folder / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder

    def command(self, folder, storeys):
        return [self.program, "--out", str(folder), "--storeys", str(storeys), "--threads", "2"]

    def expect_closed_mesh(self, path):
        """Only whole panels make a closed surface."""
        text = subprocess.run(
            [self.mesh_tool, str(path)], capture_output=True, text=True, check=True
        ).stdout
        expect("surface          closed" in text, text)


def expect_plain_lines(text):
    percents = []
    for line in text.splitlines():
        match = re.fullmatch(r" {0,2}(\d{1,3})% (" + "|".join(LEAVES) + ")", line)
        expect(match, "plain line", repr(line))
        percents.append(int(match.group(1)))
    expect(percents == sorted(percents) and percents[-1] == 100, percents)
    expect(len(percents) <= 10 + len(LEAVES) + 1, "too many lines", percents)


def shares_of_the_bar(output):
    lines = re.findall(r"^(\w+) +([0-9.]+) % +[0-9.]+ %$", output, re.MULTILINE)
    expect([name for name, _ in lines] == LEAVES, output)
    return [float(share) for _, share in lines]


def learnt(folder):
    lines = [line.split() for line in (folder / "durations.txt").read_text().splitlines()]
    expect([name for name, _ in lines] == PHASES, lines)
    return {name: float(seconds) for name, seconds in lines}


def check_two_runs(example):
    folder = example.fresh("two-runs")
    meshes = []
    for run in range(2):
        expected = [25.0, 25.0, 16.67, 16.67, 16.67]  # the same for each, of each parent
        if run == 1:
            seconds = learnt(folder)
            total = seconds["panels"] + seconds["mesh"]
            expected = [100.0 * seconds[name] / total for name in LEAVES]
        done = subprocess.run(example.command(folder, 2), capture_output=True, text=True)
        expect(done.returncode == 0, done)
        expect("panels     108 of 108\n" in done.stdout, done.stdout)
        expect_plain_lines(done.stderr)
        for share, wanted in zip(shares_of_the_bar(done.stdout), expected):
            expect(abs(share - wanted) < 0.02, "bar of run", run, share, wanted)
        meshes.append((folder / "tower.raw").read_bytes())
    expect(meshes[0] == meshes[1], "the meshes of both runs differ")
    expect(sorted(os.listdir(folder)) == ["durations.txt", "tower.raw"], os.listdir(folder))
    example.expect_closed_mesh(folder / "tower.raw")


def run_on_terminal(command, columns):
    """Everything that is drawn on a terminal of that width."""
    screen, terminal = pty.openpty()
    fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=terminal)
    os.close(terminal)
    drawn = b""
    try:
        while chunk := os.read(screen, 65536):
            drawn += chunk
    except OSError:  # the other side was closed
        pass
    os.close(screen)
    expect(process.wait() == 0, process.returncode)
    return drawn.decode()


def has_terminals():
    """Containers without /dev/pts have none."""
    try:
        for end in pty.openpty():
            os.close(end)
    except OSError as error:
        print("not checked on terminals:", error)
        return False
    return True


def check_terminal(example, columns):
    folder = example.fresh(f"terminal-{columns}")
    drawn = run_on_terminal(example.command(folder, 2), columns)
    expect("\n" not in drawn, "the bar takes more than one line")
    bars = [part for part in drawn.split("\r") if part.strip()]
    expect(len(bars) > 5, bars)
    filled = 0
    for bar in bars:
        expect(len(bar) < columns, "too wide", repr(bar))
        match = re.fullmatch(r"\[(#*) *\] +(\d+)% (" + "|".join(LEAVES) + ") *", bar)
        expect(match and len(match.group(1)) >= filled, repr(bar))
        filled = len(match.group(1))
    expect("100%" in bars[-1], bars[-1])
    expect(drawn.endswith("\r") and not drawn.split("\r")[-2].strip(), "the bar is left behind")


def check_interrupt(example, name, awaited):
    folder = example.fresh(name)
    process = subprocess.Popen(
        example.command(folder, 30), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True
    )
    lines = []
    while not (lines and awaited in lines[-1]):
        lines.append(process.stderr.readline())
        expect(lines[-1], "no line with", awaited, lines)
    process.send_signal(signal.SIGINT)
    output, errors = process.communicate()
    expect(process.returncode == STOPPED, process.returncode, errors)
    expect(not (folder / "durations.txt").exists(), "a stopped run must not teach")
    match = re.search(r"^panels     (\d+) of 1620$", output, re.MULTILINE)
    expect(match and int(match.group(1)) < 1620, output)
    if int(match.group(1)) == 0:
        expect("no panel was finished, no mesh is written" in errors, errors)
        expect(not os.listdir(folder), os.listdir(folder))
        return
    expect(f"holds the {match.group(1)} finished panels" in errors, errors)
    expect(os.listdir(folder) == ["tower.raw"], os.listdir(folder))
    example.expect_closed_mesh(folder / "tower.raw")


def check_refusals(example):
    folder = example.fresh("refusals")
    (folder / "file").write_text("")
    for status, reason, arguments in [
        (2, "--out is required", []),
        (2, "'0' is no number of storeys", ["--out", str(folder), "--storeys", "0"]),
        (2, "--fast", ["--out", str(folder), "--fast"]),
        (1, "the output folder cannot be written", ["--out", str(folder / "file")]),
    ]:
        done = subprocess.run([example.program] + arguments, capture_output=True, text=True)
        expect(done.returncode == status and reason in done.stderr, done)


def main():
    example = Example(*sys.argv[1:])
    check_two_runs(example)
    if has_terminals():
        check_terminal(example, 80)
        check_terminal(example, 40)
    check_interrupt(example, "stopped", "30% cutting")
    check_interrupt(example, "stopped-at-once", "planning")
    check_refusals(example)


if __name__ == "__main__":
    main()
