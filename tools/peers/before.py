"""Measures the distributions beside those of an earlier commit and writes the section of it.

One program of benchmarks runs in turn with either library, so that whatever else the machine does meets both.

Usage: before.py [--rounds N] [--seconds S] SOURCE BUILD OLD COMMIT PAGE
(the project, its build folder, the build folder of the earlier commit, that commit, the page)
"""

import argparse
import json
import os
import statistics
import subprocess
from dataclasses import dataclass
from pathlib import Path

import page
import sections
from machine import machine

LIBRARY = "libkelcommon.so"


@dataclass
class Row:
    name: str
    arguments: str
    before: float
    now: float

    def times_as_fast(self):
        return self.before / self.now


class WrongLibrary(Exception):
    """The program would not run with the library that it is to be run with."""


def environment_with(folder):
    return {**os.environ, "LD_LIBRARY_PATH": str(folder)}


def library_of(program, folder):
    """The file that the loader takes for the library."""
    listing = subprocess.run(["ldd", program], env=environment_with(folder), check=True, stdout=subprocess.PIPE,
                             text=True).stdout
    return library_in(listing)


def library_in(listing):
    for line in listing.splitlines():
        name, _, path = line.strip().partition(" => ")
        if name.startswith(LIBRARY):
            return Path(path.partition(" (")[0]).resolve()
    raise WrongLibrary(f"{LIBRARY} is not linked")


def seconds_by_benchmark(text):
    """The processor time of each benchmark of a report in JSON, by name and arguments."""
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    return {entry["run_name"]: entry["cpu_time"] * units[entry["time_unit"]]
            for entry in json.loads(text)["benchmarks"] if entry["run_type"] == "iteration"}


def measure(program, folder, seconds):
    text = subprocess.run([program, "--benchmark_format=json", f"--benchmark_min_time={seconds}"],
                          env=environment_with(folder), check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout
    return seconds_by_benchmark(text)


def measure_in_turn(program, folders, rounds, seconds):
    """The reports of all rounds, by side. Every second round starts with the other side."""
    reports = {side: [] for side in folders}
    for i in range(rounds):
        print(f"round {i + 1} of {rounds}", flush=True)
        for side in sorted(folders, reverse=i % 2 == 1):
            reports[side].append(measure(program, folders[side], seconds))
    return reports


def rows_of(reports):
    """`reports` maps "before" and "now" to the reports of all rounds."""
    rows = []
    for benchmark in reports["now"][0]:
        name, _, arguments = benchmark.partition("/")
        times = [statistics.median(report[benchmark] for report in reports[side]) for side in ("before", "now")]
        rows.append(Row(name, arguments.replace("/", ", ").replace(":", " "), *times))
    return rows


def section(rows, context):
    ratios = [row.times_as_fast() for row in rows]
    summary = [page.times(value) for value in (min(ratios), statistics.median(ratios), max(ratios))]
    table = page.table(["What", "Arguments", "Before", "Now", "Times as fast"],
                       [[f"`{row.name}`", row.arguments, page.duration(row.before), page.duration(row.now),
                         page.times(row.times_as_fast())] for row in rows])
    text = f"""The distributions of this version beside those of commit {context['commit']} (\"{context['subject']}\"),
        measured by `make bench-before`: one program of benchmarks runs in turn with either library on one machine
        ({context['machine']}; both compiled by {context['compiler']}). Times are the medians of {context['rounds']} runs
        each. Now they are {summary[0]} to {summary[2]} times as fast, {summary[1]} times in the median."""
    return f"## Beside an earlier version\n\n{page.paragraph(text)}\n{table}\n"


def context_of(source, commit, rounds):
    def output(*command):
        return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout.strip()

    return {"commit": output("git", "-C", source, "rev-parse", "--short=7", commit),
            "subject": output("git", "-C", source, "log", "-1", "--format=%s", commit),
            "machine": machine(), "compiler": "g++ " + output("g++", "-dumpfullversion"), "rounds": rounds}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rounds", type=int, default=9)
    parser.add_argument("--seconds", type=float, default=0.05, help="of each benchmark in a round")
    for name in ("source", "build", "old"):
        parser.add_argument(name, type=lambda text: Path(text).resolve())
    parser.add_argument("commit")
    parser.add_argument("page", type=Path)
    options = parser.parse_args()

    program = options.build / "bench/kelcommon_bench"
    folders = {"before": options.old / "kelcommon", "now": options.build / "kelcommon"}
    for folder in folders.values():
        found = library_of(program, folder)
        if found.parent != folder:
            raise WrongLibrary(f"{found} in place of that in {folder}")
    rows = rows_of(measure_in_turn(program, folders, options.rounds, options.seconds))
    body = section(rows, context_of(options.source, options.commit, options.rounds))
    options.page.write_text(sections.replaced(options.page.read_text(), "before", body))
    print(body)


if __name__ == "__main__":
    main()
