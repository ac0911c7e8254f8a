"""Measures the planner as WebAssembly beside its native form, and the opening of its page, and writes the section of it.

Usage: web.py [--rounds N] BUILD WEB PLANNER_PAGE PAGE
(the native build folder, the folder web/ of the sources with what it installed, kelpower.html, the page to write)
"""

import argparse
import gzip
import json
import math
import statistics
import subprocess
from dataclasses import dataclass
from pathlib import Path

import page
import sections
from machine import machine
from wasm import Disagreement, first_version

TWO_GROUPS = {"test": "two-means", "inputs": {"effect-d": 0.5, "n": 64}}
EXACT = {"proportion1": 0.3, "proportion2": 0.5, "power": 0.8, "method": "conditional"}
REQUESTS = [
    ("Power of a two-sample t test", "solve", TWO_GROUPS),
    ("Sizes of a two-sample t test for power 0.8", "solve",
     {"test": "two-means", "inputs": {"effect-d": 0.5, "power": 0.8}}),
    ("Power of an analysis of variance, with its densities", "solve",
     {"test": "anova", "inputs": {"means": [10, 12, 15], "sd": 6, "n": 20}, "densities": True}),
    ("Exact sizes of two proportions for power 0.8", "solve", {"test": "two-proportions", "inputs": EXACT}),
    ("Curve of 200 powers", "draw", {**TWO_GROUPS, "chart": "effect-d", "step": 1 / 199}),
    ("Contour of 50 x 50 powers", "draw", {**TWO_GROUPS, "chart": "alpha-effect-d", "step": 1 / 49}),
]
RELATIVE = 1e-12


@dataclass
class Row:
    name: str
    native: float
    wasm: float
    page: float


def lines():
    return "".join(f"{name}\t{door}\t{json.dumps(request)}\n" for name, door, request in REQUESTS)


def read_timings(text):
    """What a program printed, by name: the seconds in their order, and the reply."""
    timings = {}
    for line in text.splitlines():
        name, *seconds, reply = line.split("\t")
        timings[name] = [float(each) for each in seconds], json.loads(reply)
    return timings


def numbers_of(value):
    if isinstance(value, dict):
        value = list(value.values())
    if isinstance(value, list):
        return [number for each in value for number in numbers_of(each)]
    return [value] if isinstance(value, (int, float)) and not isinstance(value, bool) else []


def check(name, native, wasm):
    """The densities of a picture are left out: they are good to fewer digits."""
    for reply in (native, wasm):
        reply.pop("densities", None)
        if "error" in reply:
            raise Disagreement(f"{name}: {reply['error']['message']}")
    ours, theirs = numbers_of(native), numbers_of(wasm)
    if len(ours) != len(theirs) or not all(math.isclose(*pair, rel_tol=RELATIVE) for pair in zip(ours, theirs)):
        raise Disagreement(f"{name}: {native} and {wasm}")


def rows_of(rounds):
    """`rounds` has a pair of timings each, native and as WebAssembly."""
    rows = []
    for name, _, _ in REQUESTS:
        for native, wasm in rounds:
            check(name, native[name][1], wasm[name][1])
        native = statistics.median(native[name][0][0] for native, _ in rounds)
        wasm, page_side = (statistics.median(wasm[name][0][i] for _, wasm in rounds) for i in (0, 1))
        rows.append(Row(name, native, wasm, page_side))
    return rows


def section(rows, context):
    table = page.table(["What", "Native", "WebAssembly", "Times as long", "Asked from another thread"],
                       [[row.name, page.duration(row.native), page.duration(row.wasm),
                         page.times(row.wasm / row.native), page.duration(row.page)] for row in rows])
    text = f"""The package of [the planner page](web.md), in Node {context['node']}, beside the native library on one
        machine ({context['machine']}), measured in turn by `make bench-web`. A call is a request in JSON and its reply,
        with all its words. The last column is what a page sees: the way to the worker and back, and the reply read.
        Times are the medians of {context['rounds']} runs, in each of which the shortest of some passes counts."""
    opening = f"""From opening `kelpower.html` from the disk in Chromium to its first answer pass
        {page.duration(context['opening'])}, the median of {context['openings']} openings, the slowest of which took
        {page.duration(context['slowest'])}. The file has {context['size'] / 1e6:.2f} MB, and compressed
        {context['compressed'] / 1e6:.2f} MB."""
    return f"## In the browser\n\n{page.paragraph(text)}\n{table}\n{page.paragraph(opening)}"


def output(command, **options):
    return subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True,
                          **options).stdout


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--rounds", type=int, default=5)
    for name in ("build", "web", "planner_page", "page"):
        parser.add_argument(name, type=Path)
    options = parser.parse_args()

    native = [options.build / "tools/timing/kelplan_timing"]
    wasm = ["node", options.web / "bench/requests.mjs"]
    rounds = []
    for i in range(options.rounds):
        print(f"round {i + 1} of {options.rounds}", flush=True)
        rounds.append([read_timings(output(command, input=lines())) for command in (native, wasm)])
    opening = ["node", options.web / "bench/opening.mjs", options.planner_page, 9]
    openings = [float(line) for line in output(opening).split()]
    html = options.planner_page.read_bytes()
    context = {"node": first_version(["node", "--version"]), "machine": machine(), "rounds": options.rounds,
               "opening": statistics.median(openings), "slowest": max(openings), "openings": len(openings),
               "size": len(html), "compressed": len(gzip.compress(html, 9))}
    body = section(rows_of(rounds), context)
    options.page.write_text(sections.replaced(options.page.read_text(), "web", body))
    print(body)


if __name__ == "__main__":
    main()
