#!/usr/bin/env python3
"""Searches for the largest errors of a built libkelcommon against values in ball arithmetic.

In every region random starts are drawn; from the worst of them a climb takes random steps of all sizes and keeps those
that do not lessen the error. With --other each start and each step is, of several, the one at which the two builds
differ most. The same seed, budget and libraries give the same points.

Usage: search_worst.py libkelcommon.so [--function NAME] [--region TEXT] [--planning] [--seed N] [--starts N]
       [--climbs N] [--steps N] [--other libkelcommon.so] [--output file.csv]   (needs python-flint)
"""
import argparse
import csv
import random
import sys
import time

from library import load
from search_points import OUTSIDE, difference, measure
from search_regions import all_regions


class Search:
    def __init__(self, functions, others, region, options):
        self.functions = functions
        self.others = others
        self.region = region
        self.options = options
        self.rng = random.Random(f"{options.seed} {region.function} {region.name}")
        self.evaluations = 0
        self.failures = 0

    def measure(self, point, whole):
        self.evaluations += 1
        try:
            return measure(self.functions, self.region, point, whole, self.options.relative)
        except (ArithmeticError, ValueError) as error:
            self.failures += 1
            print(f"no reference: {self.region.function}, {self.region.name}: {error}", file=sys.stderr)
            return OUTSIDE

    def most_different(self, propose):
        """Of some proposals, each a point and what is whole in it, the one at which the builds differ most."""
        if not self.others:
            return propose()
        self.evaluations += self.options.proposals
        proposals = [propose() for _ in range(self.options.proposals)]
        return max(proposals, key=lambda proposal: difference(self.functions, self.others, self.region, *proposal,
                                                              self.options.relative))

    def anywhere(self):
        """At times on the border or in the middle of a range, or with equal coordinates, as of symmetric shapes."""
        point = []
        for _ in self.region.ranges:
            kind = self.rng.random()
            if kind < 0.1:
                point.append(self.rng.choice([0.0, 0.5, 1.0]))
            elif kind < 0.2 and point:
                point.append(point[-1])
            else:
                point.append(self.rng.random())
        return point, [self.rng.random() < 0.4 for _ in point]

    def start(self):
        point, whole = self.most_different(self.anywhere)
        return self.measure(point, whole), point, whole

    def neighbour(self, point):
        """A step in one or in all coordinates, as far as the borders."""
        size = 10 ** -self.rng.uniform(0.3, 9)
        chosen = self.rng.choice([None, *range(len(point))])
        steps = [self.rng.gauss(0, size) if chosen in (None, i) else 0 for i in range(len(point))]
        return [min(max(u + step, 0.0), 1.0) for u, step in zip(point, steps)]

    def count(self, usual):
        return max(1, round(usual * self.region.share))

    def climb(self, finding, point, whole):
        for _ in range(self.count(self.options.steps)):
            neighbour, _ = self.most_different(lambda: (self.neighbour(point), whole))
            found = self.measure(neighbour, whole)
            if found.score >= finding.score:
                finding, point = found, neighbour
        return finding

    def run(self):
        """The worst findings, each of a climb of its own, worst first."""
        count = self.count(self.options.starts)
        starts = sorted((self.start() for _ in range(count)), key=lambda start: -start[0].score)
        found = [self.climb(*start) for start in starts[:self.count(self.options.climbs)]]
        counted = {finding.arguments: finding for finding in found if finding.score >= 0}
        return sorted(counted.values(), key=lambda finding: -finding.score)


def report(region, search, findings, seconds, options, out):
    worst = findings[0].score if findings else 0
    print(f"{region.function}, {region.name}: {worst:.3g} of the bound in {search.evaluations} evaluations, "
          f"{seconds:.1f} s" + (f", {search.failures} without reference" if search.failures else ""), flush=True)
    for finding in findings[:options.show]:
        print(f"    {finding.score:.3g}: {', '.join(map(repr, finding.arguments))} = {finding.got!r}, "
              f"reference {finding.reference!r}, absolute {finding.absolute:.2g}, relative {finding.relative:.2g}",
              flush=True)
    if out:
        for finding in findings:
            out.writerow([region.function, region.name, search.evaluations, options.seed, repr(finding.score),
                          repr(finding.got), repr(finding.reference), *map(repr, finding.arguments)])


def parse(arguments):
    parser = argparse.ArgumentParser(description="Searches for the largest errors of libkelcommon.")
    parser.add_argument("library")
    parser.add_argument("--function", help="only this one")
    parser.add_argument("--region", default="", help="only regions whose name contains this")
    parser.add_argument("--planning", action="store_true", help="no regions beyond planning")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--starts", type=int, default=200)
    parser.add_argument("--climbs", type=int, default=5)
    parser.add_argument("--steps", type=int, default=60)
    parser.add_argument("--relative", type=float, default=1e-12,
                        help="relative error of probabilities that counts like an absolute one of 1e-14")
    parser.add_argument("--other", help="another build, to guess from where it differs")
    parser.add_argument("--proposals", type=int, default=20, help="points compared for each that is measured")
    parser.add_argument("--show", type=int, default=2, help="findings printed per region")
    parser.add_argument("--output", help="file to which the findings are appended")
    return parser.parse_args(arguments)


def main():
    options = parse(sys.argv[1:])
    functions = load(options.library)
    others = load(options.other) if options.other else None
    file = open(options.output, "a", newline="") if options.output else None
    out = csv.writer(file, lineterminator="\n") if file else None
    for region in all_regions():
        if options.function not in (None, region.function) or options.region not in region.name:
            continue
        if options.planning and region.is_beyond:
            continue
        search = Search(functions, others, region, options)
        begin = time.monotonic()
        findings = search.run()
        report(region, search, findings, time.monotonic() - begin, options, out)
        if file:
            file.flush()


if __name__ == "__main__":
    main()
