"""Measures the Python package beside the library and statsmodels and writes the section of it.

Usage: from_python.py BUILD PACKAGE STATSMODELS PAGE
(the build folder, the folder that the package is installed in, that of the unpacked statsmodels, the page)
"""

import os
import sys
from dataclasses import dataclass
from pathlib import Path

import page
import sections
from machine import machine
from measure import DEBIAN_PYTHON, run, statsmodels_environment
from python_counts import CALLS, OF_STATSMODELS, PASSES, POWERS, SIZES


class Disagreement(Exception):
    """The same powers come out differently."""


@dataclass
class Timing:
    answer: float
    processor: float
    passed: float


def read_timings(text):
    """What python_calls.py printed: timings by name, and versions by name."""
    timings, versions = {}, {}
    for line in text.splitlines():
        name, *fields = line.split("\t")
        if name == "version":
            versions[fields[0]] = fields[1]
        else:
            timings[name] = Timing(*map(float, fields))
    return timings, versions


def check_answers(timings):
    """The ufunc gives the powers of the loop to the last bit, on any number of threads."""
    answers = {timings[name].answer for name in ("loop", "ufunc", "two threads")}
    if len(answers) != 1:
        raise Disagreement(f"sums of powers: {sorted(answers)}")


def rows_of(timings):
    loop, ufunc, two, function, scalars, sizes = (
        timings[name] for name in ("loop", "ufunc", "two threads", "function", "ufunc on scalars", "sizes"))
    each = {name: timings[name].processor / CALLS for name in ("function", "ufunc on scalars")}
    rows = [[f"{POWERS:,} powers, a loop in C++ over the library", page.duration(loop.processor), ""],
            [f"{POWERS:,} powers, `kelpower.ufuncs.two_means_power` on one thread", page.duration(ufunc.processor),
             f"{page.significant(ufunc.processor / loop.processor, 3)} times as long as the loop"],
            ["the same on two threads, the time that passed", page.duration(two.passed),
             f"{page.significant(ufunc.passed / two.passed, 3)} times as fast as on one"],
            ["one power, `kelpower.two_means(effect_d=0.5, n=64).power`", page.duration(each["function"]), ""],
            ["one power, `kelpower.ufuncs.two_means_power(0.5, 64, 64, 0.05)`", page.duration(each["ufunc on scalars"]),
             ""],
            [f"{SIZES:,} sizes for power 0.8, `kelpower.ufuncs.two_means_total`", page.duration(sizes.processor), ""]]
    if "sizes of statsmodels" in timings:
        theirs = timings["sizes of statsmodels"].processor / OF_STATSMODELS * SIZES
        rows.append([f"{SIZES:,} sizes with statsmodels, from {OF_STATSMODELS} of them", page.duration(theirs),
                     f"{page.times(theirs / sizes.processor)} times as long as the ufunc, with the same sizes"])
    return rows


def section(timings, versions, machine_name):
    """The text of the section."""
    check_answers(timings)
    named = ", ".join(f"{name} {version}" for name, version in versions.items())
    text = f"""Two-sample t tests asked from Python, by `make bench-python` on one machine ({machine_name}; {named}), all in
        one process, in turn and on the same arrays. Times are processor time but where another is named; of {PASSES}
        passes the shortest counts."""
    table = page.table(["What", "Time", "Beside"], rows_of(timings))
    return f"## The Python package\n\n{page.paragraph(text)}\n{table}\n"


def main():
    build, package, statsmodels, target = map(Path, sys.argv[1:])
    if os.getloadavg()[0] > 0.5:
        print("This machine is busy, so that two threads cannot show what they do.", file=sys.stderr)
    environment = statsmodels_environment(statsmodels)
    environment["PYTHONPATH"] = os.pathsep.join([str(package), environment["PYTHONPATH"]])
    loop = build / "tools/peers/libkelpower_core_loop.so"
    timings, versions = read_timings(run([DEBIAN_PYTHON, Path(__file__).parent / "python_calls.py", loop], environment))
    body = section(timings, versions, machine())
    target.write_text(sections.replaced(target.read_text(), "python", body))
    print(body)


if __name__ == "__main__":
    main()
