#!/usr/bin/env python3
"""Writes worst_<function>.csv, the worst points that searches have found and those of `hard_points`, and searched.csv,
how they were searched.

The points that the files hold already are kept, unless --anew; findings are files that `search_worst.py --output`
wrote.

Usage: worst.py [--folder FOLDER] [--anew] [--keep N] [findings.csv ...]                      (needs python-flint)
"""
import argparse
import csv
import pathlib
from collections import defaultdict

from hard_points import HARD, hard_points
from library import PROOFS, REFERENCES, TUNING
from search_regions import all_regions

HEADER = ["function", "a1", "a2", "a3", "a4", "a5", "value", "err", "region"]
BINOMIALS = ("CdfBin", "PdfBin", "PdfNegBin")


class Found:
    """Points by function, in the order they came, with their region; and the evaluations and seeds of a region."""

    def __init__(self):
        self.points = defaultdict(dict)
        self.evaluations = defaultdict(int)
        self.seeds = defaultdict(set)

    def add(self, function, arguments, region):
        self.points[function].setdefault(tuple(arguments), region)

    def read_findings(self, path, keep):
        """Rows of a region stand worst first."""
        counts = defaultdict(int)
        for function, region, evaluations, seed, _, _, _, *arguments in csv.reader(path.open()):
            key = function, region, seed
            if key not in counts:
                self.evaluations[function, region] += int(evaluations)
                self.seeds[function, region].add(int(seed))
            counts[key] += 1
            if counts[key] <= keep:
                self.add(function, map(float, arguments), region)

    def read_stored(self, folder):
        for path in sorted(folder.glob("worst_*.csv")):
            for row in csv.DictReader(path.open()):
                cells = [row[f"a{i}"] for i in range(1, 6) if row[f"a{i}"]]
                tuning = len(TUNING.get(row["function"], []))
                self.add(row["function"], map(float, cells[:len(cells) - tuning]), row["region"])
        path = folder / "searched.csv"
        if path.exists():
            for row in csv.DictReader(path.open()):
                key = row["function"], row["region"]
                self.evaluations[key] += int(row["evaluations"])
                self.seeds[key].update(map(int, row["seeds"].split()))


def write_points(folder, function, points):
    reference = REFERENCES[function][2]
    with (folder / f"worst_{function}.csv").open("w", newline="") as file:
        out = csv.writer(file, lineterminator="\n")
        out.writerow(HEADER)
        for arguments, region in sorted(points.items(), key=lambda item: (item[1] != HARD, item[1])):
            # None: no result of the library's from which to start.
            value = reference(*arguments, None)
            if function in PROOFS and not PROOFS[function](value, *arguments):
                raise ArithmeticError(f"not the nearest double: {function}{arguments} = {value!r}")
            cells = [repr(float(x)) for x in (*arguments, *TUNING.get(function, []))]
            err = "0" if function in BINOMIALS else ""
            out.writerow([function, *cells, *[""] * (5 - len(cells)), repr(value), err, region])


def write_searched(folder, found):
    with (folder / "searched.csv").open("w", newline="") as file:
        out = csv.writer(file, lineterminator="\n")
        out.writerow(["function", "region", "evaluations", "seeds", "ranges"])
        for region in all_regions():
            key = region.function, region.name
            if key in found.evaluations:
                texts = [f"{axis} {range_}" for axis, range_ in region.ranges.items()]
                ranges = "; ".join(text for text in texts if text not in region.name)
                out.writerow([*key, found.evaluations[key], " ".join(map(str, sorted(found.seeds[key]))), ranges])


def main():
    parser = argparse.ArgumentParser(description="Writes the worst points found into the references.")
    default = pathlib.Path(__file__).resolve().parents[2] / "tests" / "kelcommon" / "references"
    parser.add_argument("--folder", type=pathlib.Path, default=default)
    parser.add_argument("--anew", action="store_true", help="forget the points stored so far")
    parser.add_argument("--keep", type=int, default=5, help="points per region and findings file")
    parser.add_argument("findings", nargs="*", type=pathlib.Path)
    options = parser.parse_args()

    found = Found()
    for point in hard_points():
        found.add(*point)
    if not options.anew:
        found.read_stored(options.folder)
    for path in options.findings:
        found.read_findings(path, options.keep)
    for function in REFERENCES:
        if function in found.points:
            write_points(options.folder, function, found.points[function])
    write_searched(options.folder, found)


if __name__ == "__main__":
    main()
