"""Measures kelpower beside other programs and writes the page of it.

Usage: measure.py SOURCE BUILD STATSMODELS PAGE
(the project, its build folder, the folder of the unpacked statsmodels, the page to write)
"""

import json
import os
import resource
import shlex
import statistics
import subprocess
import sys
from pathlib import Path

import page
import sections
from machine import machine

TOOLS = Path(__file__).parent
DEBIAN_PYTHON = "/usr/bin/python3"  # for which Debian's statsmodels is compiled
BENCHMARK_OPTIONS = ["--benchmark_format=json", "--benchmark_min_time=0.05", "--benchmark_repetitions=5",
                     "--benchmark_report_aggregates_only=true"]
RUNS_OF_PROGRAMS = 5


def run(command, environment=None):
    print(f"measuring: {Path(command[0]).name} {Path(command[1]).name}", flush=True)
    return subprocess.run(command, env=environment, check=True, stdout=subprocess.PIPE, text=True).stdout


def statsmodels_environment(folder):
    """Finds the unpacked modules, and is silent about divisions by zero on the way to a size."""
    return {**os.environ, "PYTHONDONTWRITEBYTECODE": "1", "PYTHONWARNINGS": "ignore",
            "PYTHONPATH": str(folder / "usr/lib/python3/dist-packages"),
            "LD_LIBRARY_PATH": str(folder / "usr/lib/x86_64-linux-gnu")}


def children_seconds():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def seconds_of_program(command, environment):
    def once():
        start = children_seconds()
        subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
        return children_seconds() - start

    once()  # what is read for the first time comes from the disk
    return statistics.median(once() for _ in range(RUNS_OF_PROGRAMS))


def measure_programs(build, environment, has_statsmodels):
    commands = [["kelpower", "two-means", "--effect-d", "0.5", "--power", "0.8"],
                ["Rscript", "-e", "pwr::pwr.t.test(d = 0.5, power = 0.8)"],
                ["Rscript", "-e", "power.t.test(delta = 0.5, power = 0.8)"]]
    if has_statsmodels:
        code = "from statsmodels.stats.power import *; print(tt_ind_solve_power(0.5, alpha=0.05, power=0.8))"
        commands.append(["python3", "-c", code])
    paths = {"kelpower": str(build / "cli/kelpower"), "python3": DEBIAN_PYTHON}
    return [(shlex.join(command), seconds_of_program([paths.get(command[0], command[0]), *command[1:]], environment))
            for command in commands]


def main():
    source, build, statsmodels, target = map(Path, sys.argv[1:])
    environment = statsmodels_environment(statsmodels)
    has_statsmodels = statsmodels.is_dir()

    ours = run([build / "tools/peers/kelpower_peers", *BENCHMARK_OPTIONS])
    text = run(["Rscript", TOOLS / "r_calls.R"])
    if has_statsmodels:
        text += run([DEBIAN_PYTHON, TOOLS / "statsmodels_calls.py"], environment)
    text += run([sys.executable, "-B", TOOLS / "ctypes_calls.py", build / "src/libkelpower.so"])
    programs = measure_programs(build, environment, has_statsmodels)
    benchmarks = run([build / "bench/kelpower_bench", *BENCHMARK_OPTIONS])

    calls, versions = page.read_calls(text)
    calls.update(page.our_calls(page.read_benchmarks(ours)))
    page.check_stated(calls)
    context = {"machine": machine(), "version": (source / "VERSION").read_text().strip(),
               "compiler": json.loads(ours)["context"]["compiler"]}
    sources = {path.stem: path.read_text() for path in (source / "bench").glob("*.cpp")}
    kept = sections.kept(target.read_text()) if target.exists() else ""
    target.write_text(page.page(context, calls, versions, programs, page.read_benchmarks(benchmarks), sources, kept))
    print(page.summary_table(calls))


if __name__ == "__main__":
    try:
        main()
    except (page.Disagreement, page.FallsShort) as error:
        sys.exit(f"the page is not written: {error}")
