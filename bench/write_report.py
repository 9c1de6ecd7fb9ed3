#!/usr/bin/env python3
"""Writes the report of a benchmark run as Markdown.

usage: write_report.py NOTES ROWS... > docs/benchmarks.md

ROWS are the files that the benchmark programs wrote with --rows, one JSON object a line. NOTES is
written by hand: below a heading with a workload's name it explains why a goal is not met. Such a
note is left out where this run meets the workload's goals; the rest is included as it stands.
"""

import datetime
import json
import os
import platform
import subprocess
import sys

PEER_PACKAGES = [
    "libassimp-dev",
    "libcgal-dev",
    "libcsv-dev",
    "libeigen3-dev",
    "libglu1-mesa-dev",
    "libmeshoptimizer-dev",
    "libocct-modeling-algorithms-dev",
    "libopenmesh-dev",
    "libpolyclipping-dev",
    "libssl-dev",
]

# Begins a note about one workload.
NOTE_MARK = "\n### "

UNITS = [(1.0, "s"), (1e-3, "ms"), (1e-6, "µs"), (0.0, "ns")]


def significant(number, digits=3):
    """A number with three digits that count, never in exponential form."""
    if number == 0:
        return "0"
    text = f"{number:.{digits}g}"
    return f"{float(text):.{digits}f}" if "e-" in text else f"{float(text):g}"


def time_text(seconds):
    for least, unit in UNITS:
        if seconds >= least:
            return f"{significant(seconds / (least or 1e-9))} {unit}"
    return "0"


def count_text(number):
    return f"{int(number):,}"


def memory_text(mebibytes):
    return f"{mebibytes:.0f}" if mebibytes >= 10 else f"{max(mebibytes, 0):.1f}"


def table(header, alignment, rows):
    lines = [header, alignment] + rows
    return "\n".join("| " + " | ".join(cells) + " |" for cells in lines)


def load_rows(paths):
    rows = []
    for path in paths:
        with open(path, encoding="utf-8") as file:
            rows += [json.loads(line) for line in file if line.strip()]
    return rows


def goal_text(row):
    if row["seconds_goal"]:
        return time_text(row["seconds_goal"])
    if not row["goal"]:
        return ""
    text = significant(row["goal"])
    return f"{text} (stretch {significant(row['stretch'])})" if row["stretch"] else text


def measured_row(row):
    ours, *peers = row["costs"]
    judged = next((peer for peer in peers if peer["name"] == row["goal_peer"]), None)
    verdict = row["verdict"] if row["agrees"] else "RESULTS DISAGREE"
    return [
        row["workload"],
        f"{count_text(row['size'])} {row['unit']}",
        time_text(ours["seconds"]),
        "<br>".join(f"{peer['name']}: {time_text(peer['seconds'])}" for peer in peers),
        significant(ours["seconds"] / judged["seconds"]) if judged else "",
        goal_text(row),
        verdict,
        str(int(row["rounds"])),
        "<br>".join(memory_text(cost["mebibytes"]) for cost in row["costs"]),
    ]


def measured_table(rows):
    return table(
        ["workload", "size", "ours", "peers", "ratio", "goal", "", "rounds", "MiB"],
        ["---", "---:", "---:", "---", "---:", "---:", "---", "---:", "---:"],
        [measured_row(row) for row in rows],
    )


def growth_table(rows):
    return table(
        ["workload", "sizes", "time grows with", "goal", ""],
        ["---", "---:", "---:", "---:", "---"],
        [
            [
                row["workload"],
                f"{count_text(row['first'])} to {count_text(row['last'])} {row['unit']}",
                f"N^{row['exponent']:.2f}",
                f"N^{significant(row['goal'])}" if row["goal"] else "",
                row["verdict"],
            ]
            for row in rows
        ],
    )


def phase_table(rows):
    names = [phase["name"] for phase in rows[0]["phases"]]
    return table(
        [rows[0]["workload"]] + [f"{count_text(row['size'])} {row['unit']}" for row in rows],
        ["---"] + ["---:"] * len(rows),
        [[name] + [time_text(row["phases"][i]["seconds"]) for row in rows]
         for i, name in enumerate(names)],
    )


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        for line in file:
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    return platform.machine()


def memory_gigabytes():
    return os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30


def peer_versions():
    versions = []
    for package in PEER_PACKAGES:
        found = subprocess.run(
            ["dpkg-query", "--show", "--showformat=${Version}", package],
            capture_output=True, text=True, check=False)
        versions.append(f"{package} {found.stdout if found.returncode == 0 else 'missing'}")
    return versions


def describe_run(programs):
    kind = "quick run with small sizes" if programs[0]["quick"] else "full run"
    loads = ", ".join(f"{program['load']:.1f}" for program in programs)
    today = datetime.date.today().isoformat()
    return "\n".join([
        f"- Date: {today}, {kind}, {programs[0]['clock']} time.",
        f"- Machine: {processor()}, {os.cpu_count()} cores, {memory_gigabytes():.0f} GiB,"
        f" {platform.system()} {platform.release()}; load before each program: {loads}.",
        f"- Compiler: GCC {programs[0]['compiler']}, release build.",
        f"- Peers: {', '.join(peer_versions())}.",
    ])


def is_unmet(row):
    return row.get("verdict") == "NOT MET"


def unmet_workloads(rows):
    return list(dict.fromkeys(row["workload"] for row in rows if is_unmet(row)))


def needed_notes(notes, unmet):
    general, *explanations = notes.split(NOTE_MARK)
    needed = [note for note in explanations if note.split("\n", 1)[0] in unmet]
    return NOTE_MARK.join([general] + needed)


def unmet_summary(rows, notes):
    judged = [row for row in rows if row.get("verdict") in ("met", "NOT MET")]
    unmet = [row for row in judged if is_unmet(row)]
    lines = [f"{len(judged) - len(unmet)} of {len(judged)} goals are met."]
    for workload in unmet_workloads(rows):
        known = f"{NOTE_MARK}{workload}\n" in notes
        lines.append(f"- Not met in full: {workload}" + (", see [Notes](#notes)." if known
                                                         else ". No note explains it yet."))
    return "\n".join(lines)


INTRODUCTION = """\
# Benchmarks

Written by `./run bench`; edits belong in `bench/notes.md` and `bench/write_report.py`.

Each row runs the library and its peers in turn in one process, round after round, each run on
fresh input, and keeps the least time of each. Ratio is our time over that of the first peer;
a goal is the highest ratio wanted. Input is made, and results are released, while the clock is
stopped. All contestants must come to the same result (volume, area, counts). MiB is how far the
resident memory rises during one run in a process of its own, ours first, then each peer's. The
exponent of growth is a least squares fit of log time over log size; 0.05 above its goal still
counts as noise.
"""


def main():
    notes_path, *rows_paths = sys.argv[1:]
    rows = load_rows(rows_paths)
    with open(notes_path, encoding="utf-8") as file:
        notes = needed_notes(file.read(), unmet_workloads(rows))
    programs = [row for row in rows if row["kind"] == "program"]
    print(INTRODUCTION)
    print(describe_run(programs) + "\n")
    print(unmet_summary(rows, notes))
    for program in programs:
        own = [row for row in rows if row["program"] == program["program"]]
        measured = [row for row in own if row["kind"] == "row"]
        growth = [row for row in own if row["kind"] == "growth"]
        print(f"\n## {program['program']}\n")
        print(measured_table(measured))
        if growth:
            print("\n" + growth_table(growth))
        phased = [row for row in measured if row["phases"]]
        for workload in dict.fromkeys(row["workload"] for row in phased):
            print("\n" + phase_table([row for row in phased if row["workload"] == workload]))
    print("\n" + notes.rstrip())


if __name__ == "__main__":
    main()
