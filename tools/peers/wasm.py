"""Measures the library compiled to WebAssembly beside its native form and writes the section of it.

Usage: wasm.py [--rounds N] BUILD WASM PAGE
(the build folders of either form, the page)
"""

import argparse
import statistics
import subprocess
from dataclasses import dataclass
from pathlib import Path

import page
import sections
from machine import machine


class Disagreement(Exception):
    """The two forms do not answer the same."""


@dataclass
class Timing:
    answer: float
    seconds: float


@dataclass
class Row:
    name: str
    native: float
    wasm: float

    def times_as_long(self):
        return self.wasm / self.native


def read_timings(text):
    """What the program printed: a name, an answer and seconds a line."""
    timings = {}
    for line in text.splitlines():
        name, answer, seconds = line.split("\t")
        timings[name] = Timing(float(answer), float(seconds))
    return timings


def measure_in_turn(commands, rounds):
    """The timings of all rounds, by form."""
    timings = {form: [] for form in commands}
    for i in range(rounds):
        print(f"round {i + 1} of {rounds}", flush=True)
        for form in sorted(commands, reverse=i % 2 == 1):
            text = subprocess.run(commands[form], check=True, stdout=subprocess.PIPE, text=True).stdout
            timings[form].append(read_timings(text))
    return timings


def rows_of(timings):
    """`timings` maps "native" and "wasm" to the timings of all rounds."""
    rows = []
    for name, native in timings["native"][0].items():
        wasm = timings["wasm"][0][name]
        if not abs(native.answer - wasm.answer) <= 1e-12 * abs(native.answer):
            raise Disagreement(f"{name}: {native.answer!r} and {wasm.answer!r}")
        rows.append(Row(name, *[statistics.median(timing[name].seconds for timing in timings[form])
                                for form in ("native", "wasm")]))
    return rows


def section(rows, context):
    table = page.table(["What", "Native", "WebAssembly", "Times as long"],
                       [[row.name, page.duration(row.native), page.duration(row.wasm),
                         page.times(row.times_as_long())] for row in rows])
    text = f"""The same calls of the library compiled by g++ {context['g++']}, and to WebAssembly by Emscripten
        {context['emscripten']} and run in Node {context['node']}, in turn on one machine ({context['machine']}) by
        `make bench-wasm`. Times are the medians of {context['rounds']} runs of the program, in each of which the
        shortest of some passes counts."""
    return f"## As WebAssembly\n\n{page.paragraph(text)}\n{table}\n"


def first_version(command):
    """The first word of a program's version that starts with a digit or a v before it."""
    text = subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout
    words = (word.lstrip("v") for word in text.split())
    return next(word for word in words if word[0:1].isdigit())


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rounds", type=int, default=5)
    for name in ("build", "wasm", "page"):
        parser.add_argument(name, type=Path)
    options = parser.parse_args()

    commands = {"native": [options.build / "tools/timing/kelpower_timing"],
                "wasm": ["node", "--no-experimental-fetch", options.wasm / "tools/timing/kelpower_timing.js"]}
    rows = rows_of(measure_in_turn(commands, options.rounds))
    context = {"g++": first_version(["g++", "-dumpfullversion"]), "emscripten": first_version(["em++", "--version"]),
               "node": first_version(["node", "--version"]), "machine": machine(), "rounds": options.rounds}
    body = section(rows, context)
    options.page.write_text(sections.replaced(options.page.read_text(), "webassembly", body))
    print(body)


if __name__ == "__main__":
    main()
